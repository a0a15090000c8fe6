// Results as the plot files hold them.
#pragma once

#include <algorithm>
#include <limits>

#include "platform/numbers.h"

/// A result beyond a Single stays at its end: a plot must be able to read it, and to add two of them.
inline Single plotSingle(double value) {
    constexpr double most = std::numeric_limits<Single>::max() / 2;
    return static_cast<Single>(std::clamp(value, -most, most));
}
