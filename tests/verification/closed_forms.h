// Solutions of plates on foundations from theory, to compare with.
#pragma once

#include <cmath>
#include <functional>
#include <numbers>

#include "solvers/plate/problems.h"

namespace plate {

struct Centre {
    double w, moment;
};

/// Under the centre of pressure q on a square 2c x 2c, on an infinite plate; `bed(m)` is the
/// foundation's stiffness for the wave number m: k for a liquid, m YMS / (2 (1 - PRS^2)) for
/// a half-space. Fourier integral in polar coordinates: pressure's transform, the mean of
/// sin(m c cos t) sin(m c sin t) / (m^2 cos t sin t) over t, over D m^4 + bed(m).
inline Centre infinitePlate(const SlabLayer& slab, double q, double c,
                            const std::function<double(double)>& bed) {
    const double D = rigidity(slab), step = 0.02 / c;
    Centre sum{0, 0};
    for (double m = step / 2; m < 60 / c; m += step) {
        double mean = 0;
        const int directions = 90;
        for (int i = 0; i < directions; ++i) {
            const double t = std::numbers::pi / 2 * (i + 0.5) / directions, u = m * std::cos(t),
                         v = m * std::sin(t);
            mean += 4 * std::sin(u * c) * std::sin(v * c) / (u * v) / directions;
        }
        const double w = q * mean * m * step / (2 * std::numbers::pi) / (D * m * m * m * m + bed(m));
        sum.w += w;
        sum.moment += D * (1 + slab.PR) / 2 * m * m * w;  // Mx = My by symmetry
    }
    return sum;
}

struct Guided {
    double w, mx;
};

/// Slab a x b whose four edges are axes of symmetry, pressure q on 0..c x 0..d, liquid
/// foundation k: double cosine series, at (x, y).
inline Guided guidedSlab(const SlabLayer& slab, double k, double a, double b, double c, double d, double q,
                         double x, double y) {
    const double D = rigidity(slab), pi = std::numbers::pi;
    Guided sum{0, 0};
    for (int m = 0; m < 400; ++m)
        for (int n = 0; n < 400; ++n) {
            const double u = m * pi / a, v = n * pi / b;
            const double px = m ? 2 / (a * u) * std::sin(u * c) : c / a,
                         py = n ? 2 / (b * v) * std::sin(v * d) : d / b;
            const double s = u * u + v * v,
                         w = q * px * py / (D * s * s + k) * std::cos(u * x) * std::cos(v * y);
            sum.w += w;
            sum.mx += D * (u * u + slab.PR * v * v) * w;
        }
    return sum;
}

/// Single load P on a square of this side, on a liquid foundation: deflection below it and
/// bottom stress, tension negative. Interior and edge: Westergaard (1926; edge 1948) for a
/// circle of the same area, edge for Poisson's ratio 0.15. At the corner his formulas are some
/// 14 % off; there Ioannides, Thompson and Barenberg (1985).
struct Westergaard {
    struct {
        double w, stress;
    } interior, edge, corner;
};
inline Westergaard westergaard(const SlabLayer& slab, double k, double P, double side) {
    const double h = slab.T, a = side / std::sqrt(std::numbers::pi), l = std::pow(rigidity(slab) / k, 0.25);
    const double share = (std::log(a / 2 / l) - 0.673) * a * a / l / l / (2 * std::numbers::pi);
    return {{P / (8 * k * l * l) * (1 + share), -0.316 * P / h / h * (4 * std::log10(l / a) + 1.069)},
            {0.431 * P / (k * l * l) * (1 - 0.82 * a / l),
             -0.803 * P / h / h * (4 * std::log10(l / a) + 0.666 * a / l - 0.034)},
            {P / (k * l * l) * (1.205 - 0.69 * side / l), 3 * P / h / h * (std::pow(side / l, 0.72) - 1)}};
}

/// Westergaard (1927): by how much of the full curling stress a strip of width b has less at its
/// middle, liquid foundation k.
inline double stripFactor(const SlabLayer& slab, double k, double b) {
    const double lambda = b / std::sqrt(8.) / std::pow(rigidity(slab) / k, 0.25);
    return 2 * std::cos(lambda) * std::cosh(lambda) / (std::sin(2 * lambda) + std::sinh(2 * lambda)) *
           (std::tan(lambda) + std::tanh(lambda));
}

}  // namespace plate
