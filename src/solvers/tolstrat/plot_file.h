// The plot file's copy of a data set.
#pragma once

#include "layered/layered_set.h"
#include "plots/bed_file.h"

/// What the plot repeats of a linear data set. Moduli are rounded to whole numbers.
/// @throws RunTimeError Overflow for a modulus beyond the plot file's whole numbers
BedProblem bedProblem(const LayeredSet& set);
