// Stresses, strains and deflections of a layered elastic half-space under circular loads.
//
// Start here: this header is all a caller needs. Pure functions, structs in, structs out; no files.
//
// The problem. Up to 19 (or more) horizontal, homogeneous, isotropic, linear elastic layers, the last
// one a half-space; every interface either bonded (displacements and tractions continuous) or frictionless
// (vertical displacement and pressure continuous, no shear). A wheel presses with uniform vertical
// pressure on a circle; any number of equal wheels are superposed.
//
// Symbols.  a contact radius; q contact pressure; E modulus; nu Poisson's ratio; z depth below the
// surface; r distance from a wheel's axis; w vertical, u radial displacement.
//
// Units. Any consistent set: lengths in one unit, q, E and stresses in one unit.
//
// Signs. w is positive downwards, u outwards. Stress and strain tensors are positive in compression, all
// components alike: every entry, shear too, is minus the usual tension-positive one. So the shear stress
// srz under the edge of a wheel is positive. Shear strains are tensor components, half the engineering ones.
//
// Method. Hankel transform (axisymmetric.cpp, cycles.h), one small elimination per transform parameter
// (kernel.h), the half-space of the surface layer taken out in closed form (half_space.h).
#pragma once

#include <array>
#include <span>
#include <vector>

namespace layered_theory {

struct Layer {
    double thickness;  ///< > 0; that of the last layer is not looked at
    double modulus;    ///< E > 0
    double poisson;    ///< -1 < nu <= 0.5
};

struct Structure {
    std::vector<Layer> layers;  ///< from the top, the last one a half-space; at least one
    std::vector<bool> bonded;  ///< one entry an interface, true bonded, false frictionless; empty: all bonded
};

/// A depth at which results are wanted. At an interface they are those at the bottom of the upper layer
/// (z counts as at an interface when it agrees with it to 2e-7 of itself), unless `layer` (0 for the top one)
/// names the layer; z must then lie in that layer or on its boundary.
struct Depth {
    static constexpr int FIND_LAYER = -1;
    double z;
    int layer = FIND_LAYER;
};

/// How the integrals are evaluated.
struct Control {
    /// DEL > 0. Error allowed, relative to the largest component of the same kind at the same place. The
    /// integrals aim at 1e-4 of it and never at more than 1e-7, which costs little.
    double tolerance = 1e-3;
    /// ICL >= 1. A cycle runs between two zeros of J1(m a): the first eight from each to the next, later ones
    /// over an eighth of all zeros passed. More than 100 are never used. A result that needs more says so.
    int maxCycles = 80;
};

/// Of one wheel, at a distance r from its axis and a depth.
struct AxisymmetricResponse {
    double w, u;                ///< displacements
    double srr, stt, szz, srz;  ///< stresses: radial, hoop, vertical, shear
    double err, ett, ezz, erz;  ///< strains, the same
    bool converged;             ///< false: the cycles ended before the tolerance was met
};

struct AxisymmetricResult {
    std::vector<AxisymmetricResponse> responses;  ///< radius by radius: [iRadius * depths.size() + iDepth]
    int cycles;                                   ///< cycles used; 0 for a half-space of one material
    bool converged;                               ///< false where any response is not
};

/// One wheel on the z axis, responses at all `radii` (r >= 0) x `depths`, for several structures.
///
/// All structures share the quadrature points and the tables of Bessel functions, which is why periods
/// with the same points are best solved in one call.
///
/// At the edge of the load on the surface (z = 0, r = a to 10 digits) the discontinuous components are the
/// mean of both sides: szz is q inside, q/2 on, 0 outside the edge, exactly. srz on the surface is 0.
///
/// Accuracy at the default Control: errors below 1e-8 of the largest displacement, stress or strain
/// component at the place, measured against a wider and slower calculation for moduli from 1e-6 to 1e6 of
/// each other, nu from -0.99 to 0.5, thicknesses from 0.0001 a (the surface layer: 0.005 a), r from 0 to 300
/// a, z from 0 to 1000 a. Two limits of double precision: what has died away to 1e-13 of the values below the
/// load has no digits left; displacements at a nearly rigid base lose those by which they are smaller than
/// the layer's own. The cost grows with the largest radius and with the inverse of the surface layer's
/// thickness, both over a.
///
/// @throws std::invalid_argument with a sentence that names the layer, wheel or depth, when a value is
///         outside the range given in these structs, NaN included.
std::vector<AxisymmetricResult> solveAxisymmetric(std::span<const Structure> structures, double radius,
                                                  double pressure, std::span<const double> radii,
                                                  std::span<const Depth> depths, const Control& control = {});

struct Position {
    double x, y;
};

struct Tensor {
    double xx, yy, zz, xy, xz, yz;
};

/// The three principal values, the largest first.
std::array<double, 3> principalValues(const Tensor& t);

struct Load {
    double radius;                 ///< a > 0
    double pressure;               ///< q, any sign
    std::vector<Position> wheels;  ///< at least one
};

/// Of all wheels together, at a point and a depth.
struct Response {
    double w;
    Tensor stress, strain;
    std::array<double, 3> principalStress, principalStrain;  ///< s1 >= s2 >= s3
    bool converged;  ///< false: the cycles ended before the tolerance was met for one of the wheels
};

struct Result {
    std::vector<Response> responses;  ///< point by point: [iPoint * depths.size() + iDepth]
    int cycles = 0;                   ///< as in AxisymmetricResult
    bool converged = true;
};

/// All wheels of `load` together, responses at all `points` x `depths`, for several structures at once.
/// Same conditions, accuracy and errors as solveAxisymmetric.
std::vector<Result> solve(std::span<const Structure> structures, const Load& load,
                          std::span<const Position> points, std::span<const Depth> depths,
                          const Control& control = {});

}  // namespace layered_theory
