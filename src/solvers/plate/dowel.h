// Shear stiffness of dowel bars.
#pragma once

namespace plate {

struct Dowel {
    double SCKV;  ///< modulus of dowel support [force/length^3], > 0
    double BD;    ///< diameter [length], > 0
    double WJ;    ///< width of the gap that the bar bridges [length], >= 0
    double YMSB;  ///< Young's modulus of the bar [force/length^2], > 0
    double PRSB;  ///< Poisson's ratio of the bar
};

/// Shear force in a bar by the difference of the deflections of both faces [force/length].
///
/// The bar is a semi-infinite beam on an elastic bed in the concrete of either side
/// (Timoshenko and Lessels, 1925; Friberg, 1940), with moment 0 in the middle of the
/// gap. With I = pi d^4/64, beta = (K d / 4 E I)^(1/4), z the gap and force P:
///     deflection at a face   y0 = P (2 + beta z) / (4 beta^3 E I)
///     rotation at a face     r0 = P (1 + beta z) / (2 beta^2 E I)
///     in the gap             z^3 P / (12 E I) by bending, z P / (0.9 G A) by shear
/// and the faces move 2 y0 + z r0 + both of the last. Semi-infinite is within 1 % where
/// the embedded length is more than 2.5 / beta. The slabs' own rotation is not seen by the bar.
double dowelStiffness(const Dowel& bar);

}  // namespace plate
