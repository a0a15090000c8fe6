#include "solvers/tolplate/command.h"

int main(int argc, char** argv) { return runTolplate(TOLPLATE, argc, argv); }
