// Notation: I(m, n; l) is the integral of J_m(a t) J_n(r t) exp(-z t) t^l over t from 0 to infinity.
#include "solvers/layered_theory/half_space.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace layered_theory {

namespace {

using std::numbers::pi;

/// Complete elliptic integrals of modulus k, given k' = sqrt(1 - k^2), by the arithmetic-geometric mean
/// (Abramowitz and Stegun 1964, 17.6). D = ((1 - k^2/2) K - E) / k^4 is summed from terms of one sign, so
/// that it keeps all digits as k -> 0 (limit pi/32).
struct CompleteElliptic {
    double K, E, D;
    CompleteElliptic(double k2, double kPrime) {
        double mean = (1 + kPrime) / 2, geometric = std::sqrt(kPrime);
        double c = 1 / (2 * (1 + kPrime));  // c_n / k^2 of the mean's n-th step, n = 1
        double sum = c * c, power = 1;
        while (std::abs(mean - geometric) > 1e-15 * mean) {  // quadratic; 3 to 5 steps, 12 next to the edge
            const double next = (mean + geometric) / 2;
            geometric = std::sqrt(mean * geometric);
            mean = next;
            c = k2 * c * c / (4 * mean);
            power *= 2;
            sum += power * c * c;
        }
        K = pi / (mean + geometric);
        D = K * sum;
        E = (1 - k2 / 2) * K - k2 * k2 * D;
    }
};

/// Integral over 0..pi/2 of (A cos^2 + B sin^2) / ((cos^2 + p sin^2) sqrt(cos^2 + kc^2 sin^2)), p > 0
/// (Bulirsch 1969, Numer. Math. 13, 305).
double completeIntegral(double kc, double p, double A, double B) {
    double e = kc, em = 1;
    p = std::sqrt(p);
    B /= p;
    while (true) {
        const double f = A, g = e / p;
        A += B / p;
        B = 2 * (B + f * g);
        p += g;
        const double before = em;
        em += kc;
        if (std::abs(before - kc) <= 1e-8 * before) break;  // quadratic: the result has twice these digits
        kc = 2 * std::sqrt(e);
        e = kc * em;
    }
    return pi / 2 * (B + A * em) / (em * (em + p));
}

}  // namespace

AxisIntegrals halfSpaceIntegrals(double nu, double a, double r, double z) {
    const bool atEdge = std::abs(r - a) <= 1e-10 * a;
    const double rho = std::hypot(a + r, z);   // longest and
    const double near = std::hypot(a - r, z);  // shortest distance to the rim
    const double k2 = 4 * a * r / (rho * rho);
    // The floor only matters at the edge itself, where every K comes with a factor that vanishes.
    const double kPrime = std::max(near / rho, 1e-150);
    const CompleteElliptic el(k2, kPrime);

    // omega = a I(1,0;0), the solid angle of the circle over 2 pi, and its twin r I(0,1;0); both together
    // are 1 - 2 z K / (pi rho). The smaller one comes from one integral without cancellation.
    const double both = z == 0 ? 1 : 1 - 2 * z * el.K / (pi * rho);
    const double q = std::abs(a - r) / (a + r);
    double smaller = 0;
    if (atEdge && (z == 0 || q == 0))
        smaller = both / 2;
    else if (z > 0)
        smaller = z / (pi * rho) * (1 - q) * completeIntegral(kPrime, q * q, -1, q);
    const double omega = r > a ? smaller : both - smaller;
    const double twin = r > a ? both - smaller : smaller;

    const double I10m1 =
        2 * a * el.K / (pi * rho) - 16 * a * r * r * el.D / (pi * std::pow(rho, 3)) - z * omega / a;
    const double I110byR = 16 * a * el.D / (pi * std::pow(rho, 3));
    double I11m1byR;
    if (r < 1e-3 * std::hypot(
                       a, z)) {  // the twin is O(r^2): first two terms of the series in r, rest below 1e-12
        const double d = std::hypot(a, z);
        I11m1byR = (1 - z / d) / (2 * a) - r * r * 3 * a * z / (16 * std::pow(d, 5));
    } else {
        I11m1byR = (a * twin / (r * r) + omega / a - z * I110byR) / 2;
    }

    AxisIntegrals f;
    f.w = 2 * (1 - nu) * a * I10m1 + z * omega;
    f.s = -omega;
    f.spread = -(1 - 2 * nu) * omega;
    f.hoop = -(1 - 2 * nu) * a * I11m1byR;
    if (z > 0) {
        const double zI101 =
            z / (pi * rho) * (el.K + el.E * ((a - r) * (a + r) - z * z) / (near * near));  // z a I(1,0;1)
        f.s -= zI101;
        f.spread += zI101;
        f.hoop += a * z * I110byR;
        const double shape = el.K / 4 - (1 - k2 / 2) * el.D;
        f.t = -z * z * 16 * a * a * r * shape / (pi * std::pow(rho, 3) * near * near);  // -z a I(1,1;1)
    }
    return f;
}

}  // namespace layered_theory
