// The command line of TOLSTRAT.
#pragma once

#include "solvers/solver_command.h"

/// `TOLSTRAT.EXE PATH [--csv FILE] [--csv-moduli FILE] [--csv-damage FILE] [--quiet] [--threads N]`: solves
/// the deck PATH.DAT and leaves PATH.TXT and PATH.BED beside it. On a fault a sentence goes to the error
/// stream and into the .TXT, there is no .BED, an older one included, and the status is BAD_DECK.
int runTolstrat(int argc, char** argv);
