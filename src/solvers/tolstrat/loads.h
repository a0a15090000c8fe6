// From a data set of the deck to the layered theory: which wheels stand where,
// at which points and depths results are wanted, and the layers.
#pragma once

#include <vector>

#include "layered/layered_set.h"
#include "solvers/layered_theory/layered_theory.h"

/// The wheels of a load group as they stand on the pavement: duals along y, axles along x, the first wheel at
/// the origin. LOAD 0 and a dual spacing YW of 0 give one wheel per axle.
layered_theory::Load wheelsOf(const LayeredSet& set, int group);

/// The points of a load group: XPT, YPT, or for LOAD 0 the radial coordinates as x with y = 0.
std::vector<layered_theory::Position> pointsOf(const LayeredSet& set, int group);

/// The depths ZC, where an interface belongs to the layer above it; for a damage analysis those of its
/// locations, in their layers.
std::vector<layered_theory::Depth> depthsOf(const LayeredSet& set);

/// The layers with the moduli that the deck has for one period, which may be 0 where others take their place.
layered_theory::Structure structureOf(const LayeredSet& set, int period);

/// NSTD, or 9 for a damage analysis, which needs the strains.
double responsesOf(const LayeredSet& set);
