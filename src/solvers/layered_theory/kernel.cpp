// Elimination from the top: each layer has four unknowns; two conditions come down from above, the
// interface adds four, four unknowns go out, two conditions are left for the next layer.
#include "solvers/layered_theory/kernel.h"

#include <algorithm>
#include <cmath>

namespace layered_theory {

namespace {

enum Component { W, U, S, T };

Eigen::Matrix4d stateEquations(double nu) {
    Eigen::Matrix4d M = Eigen::Matrix4d::Zero();
    M(W, S) = (1 - 2 * nu) / (1 - nu);
    M(W, U) = -nu / (1 - nu);
    M(U, T) = 2;
    M(U, W) = 1;
    M(S, T) = -1;
    M(T, S) = nu / (1 - nu);
    M(T, U) = 1 / (1 - nu);
    return M;
}

/// sinh x and (x cosh x - sinh x)/2 for 0 <= x <= 1 without cancellation, from their power series.
struct ThinFunctions {
    double sinh, cubic;
    explicit ThinFunctions(double x) {
        const double x2 = x * x;
        double s = 0, c = 0;
        for (int k = 9; k >= 1; --k) {  // the 10th term is below 1e-19
            const double ratio = x2 / (2 * k * (2 * k + 1));
            c = ratio * (k + c);  // sum of k x^2k / (2k + 1)!
            s = ratio * (1 + s);  // sum of x^2k / (2k + 1)!
        }
        sinh = x * (1 + s);
        cubic = x * c;
    }
};

}  // namespace

Kernel::Kernel(const Structure& structure) {
    const std::size_t n = structure.layers.size();
    for (std::size_t i = 0; i < n; ++i) {
        const Layer& layer = structure.layers[i];
        const double nu = layer.poisson;
        LayerData d;
        d.thickness = layer.thickness;
        d.shearModulus = layer.modulus / (2 * (1 + nu));
        d.last = i + 1 == n;
        d.bonded = d.last || structure.bonded.empty() || structure.bonded[i];
        d.decaying = State(-1, -1, 1, 1);
        d.decayingLinear = State(-2 * (1 - nu), 1 - 2 * nu, 1, 0);
        d.M = stateEquations(nu);
        d.N = d.M * d.M - Eigen::Matrix4d::Identity();
        d.MN = d.M * d.N;
        layers_.push_back(d);
    }
    unknowns_.resize(n, Eigen::Vector4d::Zero());
    eliminated_.resize(n);
}

/// A thick layer's unknowns belong to the two solutions that decay downwards from its top and the two
/// that decay upwards from its bottom; all exponentials are at most 1. These four run together as m h -> 0
/// (error 1/(m h)^3), so a thin layer has the state at its top as unknowns, carried down by
///   exp(M x) = cosh x I + sinh x M + x sinh x / 2 N + (x cosh x - sinh x)/2 M N     because N N = 0.
Kernel::Basis Kernel::basis(const LayerData& layer, double below) const {
    const double x = m_ * below;
    if (isThin(layer)) {
        const ThinFunctions f(x);
        Basis b = f.sinh * layer.M + (x * f.sinh / 2) * layer.N + f.cubic * layer.MN;
        b.diagonal().array() += std::sqrt(1 + f.sinh * f.sinh);
        return b;
    }
    Basis b;
    const double down = std::exp(-x);
    b.col(0) = down * layer.decaying;
    b.col(1) = down * (layer.decayingLinear + x * layer.decaying);
    if (layer.last) {
        b.rightCols<2>().setZero();
        return b;
    }
    const double height = m_ * (layer.thickness - below);  // upwards from the bottom: W and T change sign
    const double up = std::exp(-height);
    const State mirror(-up, up, up, -up);
    b.col(2) = mirror.cwiseProduct(layer.decaying);
    b.col(3) = mirror.cwiseProduct(layer.decayingLinear + height * layer.decaying);
    return b;
}

/// Rows 2 to 5: bottom of layer `upper` equals top of the next. Displacements are compared in units of the
/// softer of both, so that no row dwarfs another.
void Kernel::fillInterface(int upper, Tableau& t) const {
    const LayerData& above = layers_[static_cast<std::size_t>(upper)];
    const LayerData& below = layers_[static_cast<std::size_t>(upper) + 1];
    const Basis bottom = basis(above, above.thickness);
    const Basis top = basis(below, 0);
    const double softer = std::min(above.shearModulus, below.shearModulus);
    const double scaleAbove = softer / above.shearModulus, scaleBelow = softer / below.shearModulus;

    State load = State::Zero();  // minus the half-space part of the surface layer
    if (upper == 0) {
        const double x = m_ * above.thickness;
        load = std::exp(-x) * (above.decayingLinear + x * above.decaying);
    }
    const auto setRow = [&](int row, Component c, double a, double b) {
        t.block<1, 4>(row, 0) = a * bottom.row(c);
        t.block<1, 4>(row, 4) = -b * top.row(c);
        t(row, 8) = a * load(c);
    };
    setRow(2, W, scaleAbove, scaleBelow);
    setRow(3, S, 1, 1);
    if (above.bonded) {
        setRow(4, U, scaleAbove, scaleBelow);
        setRow(5, T, 1, 1);
    } else {
        setRow(4, T, 1, 0);
        setRow(5, T, 0, 1);
    }
}

void Kernel::solve(double m) {
    m_ = m;
    const std::size_t last = layers_.size() - 1;
    Tableau t = Tableau::Zero();
    const Basis surface = basis(layers_[0], 0);
    t.block<1, 4>(0, 0) = surface.row(S);
    t.block<1, 4>(1, 0) = surface.row(T);

    for (std::size_t i = 0; i < last; ++i) {
        fillInterface(static_cast<int>(i), t);
        for (int k = 0; k < 4; ++k) {
            int pivot = k;
            for (int row = k + 1; row < 6; ++row)
                if (std::abs(t(row, k)) > std::abs(t(pivot, k))) pivot = row;
            if (pivot != k) t.row(k).swap(t.row(pivot));
            for (int row = k + 1; row < 6; ++row) {
                const double factor = t(row, k) / t(k, k);
                for (int col = k + 1; col < 9; ++col) t(row, col) -= factor * t(k, col);
            }
        }
        eliminated_[i] = t.topRows<4>();
        const Eigen::Matrix<double, 2, 5> carried = t.bottomRightCorner<2, 5>();
        t.topLeftCorner<2, 4>() = carried.leftCols<4>();
        t.topRightCorner<2, 5>().setZero();
        t.topRightCorner<2, 1>() = carried.col(4);
    }

    // The half-space has the first two unknowns only.
    const double det = t(0, 0) * t(1, 1) - t(0, 1) * t(1, 0);
    unknowns_[last] << (t(0, 8) * t(1, 1) - t(0, 1) * t(1, 8)) / det,
        (t(0, 0) * t(1, 8) - t(0, 8) * t(1, 0)) / det, 0, 0;
    for (std::size_t i = last; i-- > 0;) {
        const auto& rows = eliminated_[i];
        for (int k = 3; k >= 0; --k) {
            double value = rows(k, 8) - rows.block<1, 4>(k, 4).dot(unknowns_[i + 1]);
            for (int col = k + 1; col < 4; ++col) value -= rows(k, col) * unknowns_[i](col);
            unknowns_[i](k) = value / rows(k, k);
        }
    }
}

State Kernel::at(Place place) const {
    const auto i = static_cast<std::size_t>(place.layer);
    return basis(layers_[i], place.below) * unknowns_[i];
}

}  // namespace layered_theory
