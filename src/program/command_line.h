// The program's command line: without arguments the desktop, otherwise a batch
// command for scripts and machines without a display.
#pragma once

/// `tolmark`, `tolmark solve DECK...`, `tolmark plot DECK --pdf FILE`. Returns the exit status: 0 only when
/// everything asked for was done.
int runCommandLine(int argc, char** argv);
