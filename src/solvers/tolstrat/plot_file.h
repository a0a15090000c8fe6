// The plot file's copy of a data set, with the damage found.
#pragma once

#include <vector>

#include "layered/layered_set.h"
#include "plots/bed_file.h"
#include "solvers/tolstrat/damage.h"

/// Damage locations that a plot file can hold.
inline constexpr int PLOTTED_LOCATIONS = 19;

bool fitsPlotFile(const LayeredSet& set);

/// What the plot repeats of a data set, and its damage when it has some. Moduli are those of the deck,
/// rounded to whole numbers; a viscoelastic layer's, which nobody uses, is 0 when it is too large for that.
/// Every clay has NCLAY 1.
/// @throws RunTimeError Overflow for another layer's modulus beyond the plot file's whole numbers
BedProblem bedProblem(const LayeredSet& set, const std::vector<GroupDamage>& groups, const DamageSum& sum);
