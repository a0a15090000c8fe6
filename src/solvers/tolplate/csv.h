// The results as tables for other programs, 10 significant digits, deck units.
#pragma once

#include <ostream>

#include "slab/slab_set.h"
#include "solvers/plate/plate.h"

void writeNodeHead(std::ostream& out);
/// A row per node and slab layer of every case of data set n.
void writeNodeRows(std::ostream& out, const SlabSet& set, int n, const plate::Solution& solution);

void writeJointHead(std::ostream& out);
/// A row per node pair of every joint.
void writeJointRows(std::ostream& out, int n, const plate::Solution& solution);
