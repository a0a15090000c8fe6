// The program with its windows.
#pragma once

/// Opens the main screen and runs until the user ends the program. Without a display it says so, with the
/// commands that need none, and gives 1.
int runDesktop(int argc, char** argv);
