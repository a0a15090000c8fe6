// Solves the problems of a test.
#pragma once

#include <gtest/gtest.h>

#include "problems.h"

namespace plate {

/// Solves one that must go well: no fault, forces and moments in balance, residual small.
inline Solution solved(const Problem& p) {
    Solution s = solve(p);
    EXPECT_FALSE(s.fault) << s.fault->text;
    for (const Case& c : s.cases) {
        EXPECT_LE(c.equilibrium.forceError, 1e-9);
        EXPECT_LE(c.equilibrium.momentError, 1e-9);
        EXPECT_LE(c.residual, 1e-6);
        EXPECT_TRUE(c.contact.settled);
    }
    return s;
}

}  // namespace plate
