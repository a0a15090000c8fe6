#include "solvers/tolstrat/command.h"

int main(int argc, char** argv) { return runTolstrat(argc, argv); }
