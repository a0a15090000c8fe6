// The text output, .TXT: what was asked, in words and with units, and the
// results, one table per period and load group.
#pragma once

#include <ostream>
#include <string>

#include "layered/layered_set.h"
#include "solvers/tolstrat/analysis.h"

/// Title lines: program, version, deck.
void writeHeading(std::ostream& out, const std::string& deck, int dataSets);

/// The input of data set n as the solver understood it.
void writeEcho(std::ostream& out, const LayeredSet& set, int n, const Viscoelasticity& creep);

/// The moduli, displacements, stresses, strains and principal values (what NSTD asks for; all in a damage
/// analysis) of one load group in one period, with the cycles used and a clear mark where they ended before
/// the tolerance was met.
void writeResults(std::ostream& out, const LayeredSet& set, const Viscoelasticity& creep,
                  const GroupResult& group);

/// What the plot cannot show of this data set, if anything.
void writePlotNotes(std::ostream& out, const LayeredSet& set);
