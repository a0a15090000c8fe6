// The part of the text output that tells of damage.
#pragma once

#include <ostream>
#include <vector>

#include "layered/layered_set.h"
#include "solvers/tolstrat/analysis.h"
#include "solvers/tolstrat/damage.h"

/// The locations, their constants and the load repetitions.
void writeDamageEcho(std::ostream& out, const LayeredSet& set);

/// The damaging strain at every point of one result, for the detailed printout.
void writeDamageDetail(std::ostream& out, const LayeredSet& set, const GroupResult& result);

/// Critical strains, allowed repetitions and damage ratios by period and load group, their sums, and the
/// design life.
void writeDamageSummary(std::ostream& out, const LayeredSet& set, const std::vector<GroupDamage>& groups,
                        const DamageSum& sum);
