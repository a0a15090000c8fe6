#include "solvers/tolplate/command.h"

int main(int argc, char** argv) { return runTolplate(TOLGIANT, argc, argv); }
