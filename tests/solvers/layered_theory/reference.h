// The same responses by another route, slow and simple, to judge the library by.
//
// Instead of one elimination: the impedance (tractions over displacements) of all that lies below is carried
// up through the layers by matrix exponentials from their Taylor series, in long double or wider. Instead of
// few cycles and products of tables: a brute Gauss rule over a graded mesh, one quantity after the other.
#pragma once

#include <Eigen/Dense>
#include <algorithm>
#include <boost/math/quadrature/gauss.hpp>
#include <cmath>
#include <vector>

#include "solvers/layered_theory/layered_theory.h"

namespace reference {

using layered_theory::AxisymmetricResponse;
using layered_theory::Structure;

/// Stiff and soft layers by turns, some interfaces frictionless, thicknesses .2 to .4 times `size`.
inline Structure nineteenLayers(double size, double modulus) {
    Structure s;
    for (int i = 0; i < 19; ++i) {
        s.layers.push_back({(0.2 + 0.1 * (i % 3)) * size, (i % 2 ? 1 : 1000) * modulus, i % 4 ? 0.3 : 0.5});
        if (i < 18) s.bonded.push_back(i % 5 != 2);
    }
    return s;
}

template <class Real>
using M2 = Eigen::Matrix<Real, 2, 2>;
template <class Real>
using M4 = Eigen::Matrix<Real, 4, 4>;
template <class Real>
using V4 = Eigen::Matrix<Real, 4, 1>;

/// exp(-M x), M being Hooke's law and equilibrium for 2 G m (w, u), szz, srz (tension positive, d/d(mz)).
template <class Real>
M4<Real> upwards(Real nu, Real x) {
    const Real c = 1 / (1 - nu);
    M4<Real> M;
    M << 0, -nu * c, (1 - 2 * nu) * c, 0, 1, 0, 0, 2, 0, 0, 0, -1, 0, c, nu * c, 0;
    M4<Real> term = M4<Real>::Identity(), sum = term;
    for (int k = 1; k < 200; ++k) {
        term = (term * M * (-x / k)).eval();
        sum += term;
        if (term.cwiseAbs().maxCoeff() < std::numeric_limits<Real>::epsilon() * 1e-3) break;
    }
    return sum;
}

template <class Real>
M2<Real> inverse(const M2<Real>& m) {
    M2<Real> adjoint;
    adjoint << m(1, 1), -m(0, 1), -m(1, 0), m(0, 0);
    return adjoint / (m(0, 0) * m(1, 1) - m(0, 1) * m(1, 0));
}

/// A slice of a layer; displacements below its top follow from those at its top by `down`.
template <class Real>
struct Slice {
    std::size_t layer;
    Real x;  // m times its thickness
    bool frictionless = false, wanted = false;
    M2<Real> impedance = M2<Real>::Zero();  // at its bottom, of all below; for its own shear modulus as unit
    M2<Real> down = M2<Real>::Zero();
};

/// State (2 G m w, 2 G m u, szz, srz) for unit pressure at depth z > 0 or z = 0, by impedances.
/// G is that of the layer in which z lies.
template <class Real>
V4<Real> state(const Structure& s, Real m, double z, std::size_t layerOfZ) {
    const auto nu = [&](std::size_t i) { return Real(s.layers[i].poisson); };
    const auto G = [&](std::size_t i) { return Real(s.layers[i].modulus) / (2 * (1 + nu(i))); };
    const std::size_t last = s.layers.size() - 1;

    std::vector<Slice<Real>> slices;
    const auto addSlices = [&](std::size_t layer, Real thickness) {
        const int count = std::max(1, static_cast<int>(std::ceil(static_cast<double>(m * thickness) / 3)));
        for (int k = 0; k < count; ++k) slices.push_back({layer, m * thickness / count});
    };
    Real top = 0;
    for (std::size_t i = 0; i <= last; ++i) {
        const Real bottom = i == last ? std::max(top, Real(z)) : top + Real(s.layers[i].thickness);
        const bool inside = z > 0 && i == layerOfZ;
        const Real split = inside ? std::min(Real(z), bottom) : top;
        if (inside) {
            addSlices(i, split - top);
            slices.back().wanted = true;
        }
        if (bottom - split > 1e-12 * bottom) addSlices(i, bottom - split);
        if (i < last && !s.bonded.empty() && !s.bonded[i]) slices.back().frictionless = true;
        top = bottom;
    }

    // The half-space: an infinite stack of slices forgets its foundation like exp(-2 x).
    M2<Real> Z = M2<Real>::Zero();
    const M4<Real> step = upwards(nu(last), Real(3));
    const auto carryUp = [](const M4<Real>& P, const M2<Real>& below, M2<Real>& down) {
        const M2<Real> d = P.template topLeftCorner<2, 2>() + P.template topRightCorner<2, 2>() * below;
        down = inverse<Real>(d);
        return M2<Real>((P.template bottomLeftCorner<2, 2>() + P.template bottomRightCorner<2, 2>() * below) *
                        down);
    };
    M2<Real> unused;
    for (int k = 0; k < 24; ++k) Z = carryUp(step, Z, unused);

    std::size_t material = last;
    M4<Real> P;
    for (std::size_t i = slices.size(); i-- > 0;) {
        Slice<Real>& slice = slices[i];
        Z *= G(material) / G(slice.layer);
        material = slice.layer;
        slice.impedance = Z;
        if (slice.frictionless) {  // below, u adjusts itself so that there is no shear
            Z(0, 0) -= Z(0, 1) * Z(1, 0) / Z(1, 1);
            Z(0, 1) = Z(1, 0) = Z(1, 1) = 0;
        }
        if (i + 1 == slices.size() || slices[i + 1].layer != slice.layer || slices[i + 1].x != slice.x)
            P = upwards(nu(slice.layer), slice.x);
        Z = carryUp(P, Z, slice.down);
    }
    Eigen::Matrix<Real, 2, 1> d = inverse<Real>(Z).col(0) * Real(-1);
    V4<Real> y;
    y << d, Z * d;
    if (z == 0) return y;
    for (std::size_t i = 0; i < slices.size(); ++i) {
        const Slice<Real>& slice = slices[i];
        d = (slice.down * d).eval();
        M2<Real> below = slice.impedance;
        if (slice.frictionless) {
            below(0, 0) -= below(0, 1) * below(1, 0) / below(1, 1);
            below(0, 1) = below(1, 0) = below(1, 1) = 0;
        }
        y << d, below * d;
        if (slice.wanted) return y;
        if (slice.frictionless) d(1) = -slice.impedance(1, 0) / slice.impedance(1, 1) * d(0);
        if (i + 1 < slices.size()) d *= G(slices[i + 1].layer) / G(slice.layer);
    }
    return y;
}

/// The integrals of w, szz, err + ett, ett, srz (the first, third and fourth times 2 G) for given transforms.
struct Integrals {
    long double w = 0, s = 0, spread = 0, hoop = 0, t = 0;
};

/// a INT transform(m) J(m r) J1(m a) dm for all radii; the transform is negligible beyond m = end.
template <class Transform>
std::vector<Integrals> integrate(double a, const std::vector<double>& radii, double end,
                                 Transform transform) {
    using Rule = boost::math::quadrature::gauss<double, 30>;
    std::vector<Integrals> result(radii.size());
    const double longestPanel = 40 / (a + std::ranges::max(radii));
    double from = 0, to = 1e-6 / a;
    while (from < end) {
        for (std::size_t i = 0; i < 30; ++i) {
            const double x = (i < 15 ? -1 : 1) * Rule::abscissa()[i % 15];
            const double m = (from + to) / 2 + (to - from) / 2 * x;
            const long double weight = (to - from) / 2 * Rule::weights()[i % 15] * a * ::j1(m * a);
            const auto y = transform(m);
            for (std::size_t k = 0; k < radii.size(); ++k) {
                const double r = radii[k], j0 = ::j0(m * r), j1 = ::j1(m * r);
                Integrals& f = result[k];
                f.w += weight * y(0) / m * j0;
                f.s += weight * y(2) * j0;
                f.spread += weight * y(1) * j0;
                f.hoop += weight * y(1) * (r == 0 ? 0.5 : j1 / (m * r));
                f.t += weight * y(3) * j1;
            }
        }
        from = to;
        to = std::min(2 * from, from + longestPanel);
    }
    return result;
}

/// Half-space under the same load: (W, U, S, T) in closed form, the textbook transforms.
inline Eigen::Matrix<long double, 4, 1> halfSpaceState(double nu, long double x) {
    return Eigen::Matrix<long double, 4, 1>(2 * (1 - nu) + x, -(1 - 2 * nu) + x, -(1 + x), -x) * std::exp(-x);
}

/// w, szz and srr below the centre of the load on a half-space (Love 1929; Foster and Ahlvin 1954).
inline AxisymmetricResponse onAxis(double E, double nu, double a, double q, double z) {
    const double R = std::hypot(a, z), c = z / R;
    AxisymmetricResponse y{};
    y.w = q * (1 + nu) / E * (a * a / R + (1 - 2 * nu) * (R - z));
    y.szz = q * (1 - c * c * c);
    y.srr = q / 2 * (1 + 2 * nu - 2 * (1 + nu) * c + c * c * c);
    return y;
}

/// Values on the surface of a half-space (Johnson 1985, Contact Mechanics, 3.4); r = a is not meant here.
inline Integrals surfaceOfHalfSpace(double nu, double a, double r) {
    const bool inside = r < a;
    const double k = inside ? r / a : a / r;
    const double shape = inside ? a * std::comp_ellint_2(k)
                                : r * (std::comp_ellint_2(k) - (1 - k * k) * std::comp_ellint_1(k));
    Integrals f;
    f.w = 2 * (1 - nu) * shape * 2 / M_PI;
    f.s = inside ? -1 : 0;
    f.spread = inside ? -(1 - 2 * nu) : 0;
    f.hoop = -(1 - 2 * nu) / 2 * (inside ? 1 : k * k);
    return f;
}

/// Responses for pressure q from the integrals, by Hooke's law.
inline AxisymmetricResponse response(const Integrals& f, double E, double nu, double q, double r) {
    const long double G2 = E / (1 + nu), rr = f.spread - f.hoop,
                      zz = ((1 - 2 * nu) * f.s - nu * f.spread) / (1 - nu);
    const auto d = [](long double x) { return static_cast<double>(x); };
    AxisymmetricResponse y{};
    y.w = d(q * f.w / G2);
    y.u = d(q * f.hoop / G2 * r);
    y.szz = d(-q * f.s);
    y.srr = d(-q * (f.s + rr - zz));  // srr - szz = 2 G (err - ezz), whatever nu is
    y.stt = d(-q * (f.s + f.hoop - zz));
    y.srz = d(-q * f.t);
    y.err = d(-q * rr / G2);
    y.ett = d(-q * f.hoop / G2);
    y.ezz = d(-q * zz / G2);
    y.erz = d(-q * f.t / G2);
    return y;
}

/// Responses at all radii for depth z. The half-space part of the surface layer is integrated apart, or taken
/// from the textbook on the surface, so that any z will do.
template <class Real = long double>
std::vector<AxisymmetricResponse> solve(const Structure& s, double a, double q,
                                        const std::vector<double>& radii, double z) {
    std::size_t i = 0;
    double bottom = s.layers[0].thickness;
    while (i + 1 < s.layers.size() && z > bottom * (1 + 1e-9)) bottom += s.layers[++i].thickness;
    const auto& layer = s.layers[i];
    const double nu = layer.poisson;
    const auto transform = [&](double m) {
        V4<Real> y = state<Real>(s, Real(m), z, i);
        if (i == 0) y -= halfSpaceState(nu, m * z).template cast<Real>();
        return V4<long double>(y.template cast<long double>());
    };

    std::vector<Integrals> f(radii.size());
    if (s.layers.size() > 1) f = integrate(a, radii, 45 / (i == 0 ? 2 * layer.thickness - z : z), transform);
    std::vector<Integrals> homogeneous(radii.size());
    if (i == 0 && z == 0)
        for (std::size_t k = 0; k < radii.size(); ++k) homogeneous[k] = surfaceOfHalfSpace(nu, a, radii[k]);
    else if (i == 0)
        homogeneous = integrate(a, radii, 45 / z, [&](double m) { return halfSpaceState(nu, m * z); });

    std::vector<AxisymmetricResponse> result;
    for (std::size_t k = 0; k < radii.size(); ++k) {
        const Integrals &g = f[k], &h = homogeneous[k];
        const Integrals sum{g.w + h.w, g.s + h.s, g.spread + h.spread, g.hoop + h.hoop, g.t + h.t};
        result.push_back(response(sum, layer.modulus, nu, q, radii[k]));
    }
    return result;
}

}  // namespace reference
