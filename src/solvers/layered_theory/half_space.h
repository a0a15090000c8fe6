// Uniform pressure on a circle on a homogeneous half-space, in closed form (Love 1929; integrals after
// Eason, Noble and Sneddon 1955, Phil. Trans. A 247).
#pragma once

namespace layered_theory {

/// The five integrals from which all responses follow, tension positive, for unit pressure:
/// a times the integral over m of the transform (kernel.h) times J1(m a) times the Bessel factor named.
struct AxisIntegrals {
    double w = 0;       ///< W/m J0(m r):       2 G w
    double s = 0;       ///< S   J0(m r):       szz
    double spread = 0;  ///< U   J0(m r):       2 G (err + ett)
    double hoop = 0;    ///< U   J1(m r)/(m r): 2 G ett
    double t = 0;       ///< T   J1(m r):       srz
};

/// The integrals of a half-space with Poisson's ratio nu at distance r >= 0 and depth z >= 0 for contact
/// radius a > 0. On the surface at r = a (to 1e-10 a) the discontinuous ones are the mean of both sides.
/// Absolute error about 1e-15 up to r, z = 300 a; no loss as r -> 0, z -> 0 or (r, z) -> (a, 0).
AxisIntegrals halfSpaceIntegrals(double nu, double a, double r, double z);

}  // namespace layered_theory
