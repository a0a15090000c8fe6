// From a data set of the deck to the layered theory and back: which wheels stand
// where, at which points and depths results are wanted, and what came out.
#pragma once

#include <vector>

#include "layered/layered_set.h"
#include "solvers/layered_theory/layered_theory.h"

/// The wheels of a load group as they stand on the pavement: duals along y, axles along x, the first wheel at
/// the origin. LOAD 0 and a dual spacing YW of 0 give one wheel per axle.
layered_theory::Load wheelsOf(const LayeredSet& set, int group);

/// The points of a load group: XPT, YPT, or for LOAD 0 the radial coordinates as x with y = 0.
std::vector<layered_theory::Position> pointsOf(const LayeredSet& set, int group);

/// The depths ZC; an interface belongs to the layer above it.
std::vector<layered_theory::Depth> depthsOf(const LayeredSet& set);

/// The layers with the moduli of one period.
layered_theory::Structure structureOf(const LayeredSet& set, int period);

/// Responses of one load group in one period.
struct GroupResult {
    int period, group;  ///< from 1
    std::vector<layered_theory::Position> points;
    std::vector<layered_theory::Depth> depths;
    layered_theory::Result result;  ///< responses [point * depths + depth]
};

/// One load group of a linear data set in all its periods, which share the integration points.
/// @pre the data set has passed checkLayeredSet()
std::vector<GroupResult> solveLinearGroup(const LayeredSet& set, int group);
