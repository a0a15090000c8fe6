// From a data set of the slab deck to the plate's numbers.
#pragma once

#include <vector>

#include "slab/slab_set.h"
#include "solvers/plate/problem.h"

/// What the plate solver is given, without what a data set before left. @pre checkSlabSet() found no fault.
plate::Problem plateProblem(const SlabSet& set);

/// Nodes of the slabs before slab `s`, from 1; of all slabs with s = NSLAB + 1.
int nodesBefore(const SlabSet& set, int s);

/// Slab from 1 that a node stands on.
int slabOfNode(const SlabSet& set, int node);

/// Slab whose stresses a load group asks for: that of its first loaded area, else of the first force, else 1.
int loadedSlab(const SlabSet& set, int group);

/// Nodes whose stresses are reported: those of the printout list, or all of the loaded slab.
std::vector<int> reportedNodes(const SlabSet& set, int group);
