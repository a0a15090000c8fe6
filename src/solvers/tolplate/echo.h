// The input of a data set in the text output, as the solver understood it, with units.
#pragma once

#include <ostream>

#include "slab/slab_set.h"

void writeSlabEcho(std::ostream& out, const SlabSet& set, int n);
