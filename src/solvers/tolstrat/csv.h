// The results as a table for other programs.
#pragma once

#include <ostream>

#include "layered/layered_set.h"
#include "solvers/tolstrat/linear.h"

/// set,period,group,point,x,y,z,w,...,e3
void writeCsvHead(std::ostream& out);

/// One line per point and depth, 10 significant digits, in deck units; what NSTD leaves out is empty.
void writeCsvRows(std::ostream& out, const LayeredSet& set, int n, const GroupResult& group);
