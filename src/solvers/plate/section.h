// The bending section of one or two slab layers.
#pragma once

#include <Eigen/Dense>
#include <array>
#include <vector>

#include "solvers/plate/problem.h"

namespace plate {

/// Moments and stresses of a section by its curvature, all in the order x, y, xy.
/// Curvature is -(w,xx w,yy 2 w,xy): positive when sagging, tension at the bottom.
struct Section {
    struct Layer {
        Eigen::Matrix3d moment;  ///< moment per length about the section's neutral axis [force]
        Eigen::Matrix3d bottom;  ///< stress at the layer's bottom [force/length^2], tension positive
    };
    Eigen::Matrix3d stiffness;  ///< the sum of the layers' moments [force length]
    std::array<Layer, 2> layer;
    double thickness;  ///< of all layers
};

/// Section of `layers` with thicknesses `T` [length] in place of their own.
///
/// Unbonded layers bend each about its own middle and their stiffnesses add. Bonded
/// layers act as a laminate without resultant in-plane force: with A, B, D the
/// moments of order 0, 1, 2 of the plane-stress moduli, the stiffness is D - B A^-1 B
/// (Reissner and Stavsky, 1961), which is the composite section's E I where the
/// Poisson's ratios agree and stays exact where they do not.
Section makeSection(const std::vector<SlabLayer>& layers, const std::array<double, 2>& T, bool bonded);

}  // namespace plate
