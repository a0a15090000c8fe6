// The text output, .TXT: the results, one block per period and load group.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "slab/slab_set.h"
#include "solvers/plate/plate.h"
#include "solvers/tolplate/damage_sum.h"

/// Title lines: program, version, deck, assumptions and signs.
void writeHeading(std::ostream& out, const std::string& program, const std::string& deck, int dataSets);

/// What dataWarnings() has to say, behind the input.
void writeDataWarnings(std::ostream& out, const SlabSet& set);

/// Contact, deflections, reactions, stresses and joint forces of one case; more of them with MDPO. What
/// passed its bound is marked clearly.
void writeCase(std::ostream& out, const SlabSet& set, const plate::Case& c);

/// Stress ratios, repetitions, indices and the life.
void writeDamage(std::ostream& out, const SlabSet& set, const plate::Solution& solution,
                 const DamageSum& sum);

/// What the plot cannot show of this data set, if anything.
void writePlotNotes(std::ostream& out, const SlabSet& set);

/// Sentences on data that can be solved but are hardly meant: layers without weight, nodes
/// listed twice, loads that act twice.
std::vector<std::string> dataWarnings(const SlabSet& set);

/// Sentences on a case that went wrong without being lost: DEL or FMAX passed, contact that did not settle.
std::vector<std::string> warnings(const SlabSet& set, const plate::Case& c);
