#include "solvers/plate/element.h"

#include <algorithm>

namespace plate {

// With t = xi xi_i and s = eta eta_i the functions of corner i are
//   w:  (1+t)(1+s)(2+t+s-t^2-s^2)/8,   w,x:  a xi_i (1+t)^2 (t-1)(1+s)/8,
//   w,y:  b eta_i (1+s)^2 (s-1)(1+t)/8.
Vector12 shape(double xi, double eta, double a, double b) {
    Vector12 n;
    for (int i = 0; i < 4; ++i) {
        const auto [xi_i, eta_i] = corners[static_cast<std::size_t>(i)];
        const double t = xi * xi_i, s = eta * eta_i;
        n(3 * i) = (1 + t) * (1 + s) * (2 + t + s - t * t - s * s) / 8;
        n(3 * i + 1) = -b * eta_i * (1 + s) * (1 + s) * (s - 1) * (1 + t) / 8;
        n(3 * i + 2) = a * xi_i * (1 + t) * (1 + t) * (t - 1) * (1 + s) / 8;
    }
    return n;
}

Curvature curvature(double xi, double eta, double a, double b) {
    Curvature c;
    for (int i = 0; i < 4; ++i) {
        const auto [xi_i, eta_i] = corners[static_cast<std::size_t>(i)];
        const double t = xi * xi_i, s = eta * eta_i;
        // Second derivatives by xi xi, eta eta and xi eta of w, w,x and w,y.
        c.col(3 * i) << -0.75 * t * (1 + s), -0.75 * s * (1 + t),
            xi_i * eta_i * (4 - 3 * t * t - 3 * s * s) / 8;
        c.col(3 * i + 1) << 0, -b * eta_i * (6 * s + 2) * (1 + t) / 8,
            -b * xi_i * (3 * s * s + 2 * s - 1) / 8;
        c.col(3 * i + 2) << a * xi_i * (6 * t + 2) * (1 + s) / 8, 0, a * eta_i * (3 * t * t + 2 * t - 1) / 8;
    }
    c.row(0) *= -1 / (a * a);
    c.row(1) *= -1 / (b * b);
    c.row(2) *= -2 / (a * b);
    return c;
}

// The functions are cubic in each coordinate: two points each are exact.
Vector12 shapeIntegral(double xi0, double xi1, double eta0, double eta1, double a, double b) {
    Vector12 sum = Vector12::Zero();
    for (const GaussPoint& p : gauss2)
        for (const GaussPoint& q : gauss2)
            sum +=
                shape((xi0 + xi1 + p.at * (xi1 - xi0)) / 2, (eta0 + eta1 + q.at * (eta1 - eta0)) / 2, a, b);
    return sum * (a * b * (xi1 - xi0) * (eta1 - eta0) / 4);
}

Vector12 quarterIntegral(int corner, double a, double b) {
    const auto [xi, eta] = corners[static_cast<std::size_t>(corner)];
    return shapeIntegral(std::min(0., xi), std::max(0., xi), std::min(0., eta), std::max(0., eta), a, b);
}

QuarterProducts::QuarterProducts() {
    for (std::size_t c = 0; c < 4; ++c) {
        unit_[c].setZero();
        for (const GaussPoint& p : gauss4)
            for (const GaussPoint& q : gauss4) {
                const Vector12 n = shape((corners[c][0] + p.at) / 2, (corners[c][1] + q.at) / 2, 1, 1);
                unit_[c] += n * n.transpose() * (p.weight * q.weight / 4);
            }
    }
}

Matrix12 QuarterProducts::operator()(int corner, double a, double b) const {
    Vector12 scale;
    scale << 1, b, a, 1, b, a, 1, b, a, 1, b, a;
    return scale.asDiagonal() * unit_[static_cast<std::size_t>(corner)] * scale.asDiagonal() * (a * b);
}

}  // namespace plate
