// The plot file's part of a data set: what is drawn of the input, and the results of each page.
#pragma once

#include "plots/pan_file.h"
#include "slab/slab_set.h"
#include "solvers/plate/plate.h"
#include "solvers/tolplate/damage_sum.h"

/// The table of stresses (moments for a raft) is that of the last load group in the last period. `damage`
/// counts when NDAMA is not 0.
PanRun panRun(const SlabSet& set, const plate::Solution& solution, const DamageSum& damage);

struct LargestStress {
    int node;
    double value;  ///< deck units
};

/// The principal stress of largest magnitude among the reported nodes, with its sign.
LargestStress largestStress(const SlabSet& set, const plate::Case& c, int layer);

/// What the table of the plot holds, a PanProblem::Table.
Integer tableKind(const SlabSet& set);
