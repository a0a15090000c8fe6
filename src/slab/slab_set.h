// One data set of the slab side, as the deck names its fields. So far the two
// counts that the shared boards and tables reach.
#pragma once

#include "platform/numbers.h"

struct SlabSet {
    Integer NPY = 0;  ///< periods per year, at most 12
    Integer NLG = 0;  ///< load groups, at most 12
};
