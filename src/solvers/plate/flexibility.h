// How the surface of a solid or layered foundation answers to the slabs' pressure.
#pragma once

#include <Eigen/Dense>
#include <functional>
#include <optional>
#include <vector>

#include "solvers/plate/mesh.h"

namespace plate {

/// Deflection of the surface at distance r from a unit force:
///     w(r) = (1 - PR^2) / (pi YM r) + smooth(r).
/// The first term is the half-space of the top layer's constants (Boussinesq, 1885);
/// the rest, what the layers below change, is finite at r = 0. Lengths are those of the
/// problem, deflections length/force.
struct SurfaceKernel {
    double YM, PR;
    std::function<double(double r)> smooth;  ///< empty for a half-space
    double scale = 0;  ///< smallest distance over which `smooth` changes much: the top layer's thickness
};

/// Lines of symmetry of the plan: what presses here presses at the mirrored place, too.
struct Mirrors {
    std::optional<double> x;  ///< the y axis of symmetry stands at this x
    std::optional<double> y;  ///< the x axis of symmetry stands at this y
};

/// Flexibility of the foundation, nodes x nodes [length/force]: the mean deflection of
/// node i's area under a unit force spread evenly over node j's area, mirror images
/// included. Symmetric; positive definite for a half-space. Nodes of slabs that no
/// chain of joints links have no place relative to each other and no influence.
///
/// The half-space is in closed form: with d the differences of the rectangles' borders,
/// the double integral of 1/r is the signed sum of
///     I(x, y) = x^2 y/2 asinh(y/x) + x y^2/2 asinh(x/y) - r^3/6,
/// the fourth integral of 1/r (twice by x, twice by y) to within terms that cancel;
/// far apart, where the sum cancels, 1/r is expanded about the centres to the sixth
/// moment. Relative accuracy 1e-10. `smooth` is tabulated and
/// integrated by a rule of degree 5, on parts of at most half its scale where areas
/// are near; measured against finer parts within 2e-5 of the diagonal (first layer 2 to 20 in. thick under
/// areas of 4 to 20 in., moduli 1:5 to 50:1).
Eigen::MatrixXd flexibility(const Mesh& mesh, const SurfaceKernel& kernel, const Mirrors& mirrors);

/// Mean over rectangle p of the potential 1/r of a unit source spread over rectangle q.
double meanInverseDistance(const Rectangle& p, const Rectangle& q);

}  // namespace plate
