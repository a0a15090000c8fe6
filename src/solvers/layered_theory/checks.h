// Preconditions of the public functions. Each throws std::invalid_argument with a sentence for the engineer.
#pragma once

#include <span>

#include "solvers/layered_theory/layered_theory.h"

namespace layered_theory {

/// A depth counts as at an interface when it agrees with it to this part of itself: thicknesses add up
/// with rounding errors, of single precision at worst, and 0.0001 below a depth of 100 must still be below.
constexpr double INTERFACE_TOLERANCE = 2e-7;

void checkArguments(std::span<const Structure> structures, double radius, double pressure,
                    std::span<const Depth> depths, const Control& control);
void checkRadii(std::span<const double> radii);
void checkPositions(std::span<const Position> positions, const char* what);

}  // namespace layered_theory
