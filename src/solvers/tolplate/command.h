// The command line of TOLPLATE and TOLGIANT.
#pragma once

#include <limits>

#include "solvers/solver_command.h"

/// The same program under two names: what differs is how much memory a deck may need.
struct SlabSolver {
    const char* name;
    double ceiling;  ///< bytes
};

/// All decks with slabs of 15 by 15 nodes fit, on any foundation.
inline constexpr SlabSolver TOLPLATE{"TOLPLATE", 128e6};
inline constexpr SlabSolver TOLGIANT{"TOLGIANT", std::numeric_limits<double>::infinity()};

/// `TOLPLATE.EXE PATH [--csv FILE] [--csv-joints FILE] [--quiet]`: solves the deck PATH.DAT and leaves
/// PATH.TXT and PATH.PAN beside it. On a fault a sentence goes to the error stream and into the .TXT, there
/// is no .PAN, an older one included, and the status is BAD_DECK.
int runTolplate(const SlabSolver& solver, int argc, char** argv);
