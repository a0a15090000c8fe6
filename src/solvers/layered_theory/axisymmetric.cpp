// One wheel: the Hankel integrals over all cycles for every radius and depth, and what follows from them.
//
// Per cycle the Bessel functions form matrices (radius x node), the kernel another (quantity x node), and the
// integrals are their products: the cost of a further point is a row of the first, of a further depth some
// rows of the second, and the elimination at each node is shared by all.
#include <Eigen/Dense>
#include <algorithm>
#include <cmath>

#include "solvers/layered_theory/bessel.h"
#include "solvers/layered_theory/checks.h"
#include "solvers/layered_theory/cycles.h"
#include "solvers/layered_theory/half_space.h"
#include "solvers/layered_theory/kernel.h"
#include "solvers/layered_theory/layered_theory.h"

namespace layered_theory {

namespace {

using Eigen::Index;
using Eigen::MatrixXd;

/// Bessel factors at a portion of nodes, weights and a J1(m a) included. Rows are radii, columns nodes.
struct BesselTables {
    MatrixXd j0;                         // J0(m r)
    MatrixXd j1byX;                      // J1(m r)/(m r)
    MatrixXd absoluteJ0, absoluteJ1byX;  // their absolute values
};

BesselTables besselTables(const Nodes& nodes, double a, std::span<const double> radii) {
    const auto rows = static_cast<Index>(radii.size()), cols = static_cast<Index>(nodes.m.size());
    BesselTables tables{MatrixXd(rows, cols), MatrixXd(rows, cols), {}, {}};
    for (Index j = 0; j < cols; ++j) {
        const double m = nodes.m[static_cast<std::size_t>(j)];
        const double weight = nodes.weight[static_cast<std::size_t>(j)] * a * bessel(m * a).j1;
        for (Index i = 0; i < rows; ++i) {
            const double x = m * radii[static_cast<std::size_t>(i)];
            const Bessel b = bessel(x);
            tables.j0(i, j) = weight * b.j0;
            tables.j1byX(i, j) = weight * (x == 0 ? 0.5 : b.j1 / x);
        }
    }
    tables.absoluteJ0 = tables.j0.cwiseAbs();
    tables.absoluteJ1byX = tables.j1byX.cwiseAbs();
    return tables;
}

/// The place of a depth; the interface belongs to the upper layer.
Place findPlace(const Structure& structure, const Depth& depth) {
    const int last = static_cast<int>(structure.layers.size()) - 1;
    double top = 0;
    for (int i = 0;; ++i) {
        const double thickness = structure.layers[static_cast<std::size_t>(i)].thickness;
        const bool here = depth.layer == Depth::FIND_LAYER
                              ? i == last || depth.z <= (top + thickness) * (1 + INTERFACE_TOLERANCE)
                              : i == depth.layer;
        if (here) {
            const double below = std::max(depth.z - top, 0.0);
            return {i, i == last ? below : std::min(below, thickness)};
        }
        top += thickness;
    }
}

/// A length beyond which the kernel is as it is for m = 0: a layer that is n times stiffer than what
/// lies below it spreads a load in bending over n^(1/3) and in its plane over n thicknesses.
double longestLength(const Structure& structure, std::span<const Depth> depths) {
    double sum = 0, softest = structure.layers.back().modulus;
    for (std::size_t i = structure.layers.size() - 1; i-- > 0;) {
        const Layer& layer = structure.layers[i];
        sum += layer.thickness * std::max(1.0, layer.modulus / softest);
        softest = std::min(softest, layer.modulus);
    }
    for (const Depth& d : depths) sum = std::max(sum, d.z);
    return sum;
}

/// The integrals of one structure, cycle by cycle, until they no longer change.
class Integration {
  public:
    Integration(const Structure& structure, double a, std::span<const double> radii,
                std::span<const Depth> depths, double tolerance);

    void add(const Nodes& nodes, const BesselTables& tables);
    void endCycle();
    bool done() const { return converged_.all(); }
    AxisymmetricResult result(double pressure) const;

  private:
    // Rows of the kernel's matrices, for every depth.
    enum J0Row { W_BY_M, S, U, J0_ROWS };
    enum J1Row { HOOP_U, M_T, J1_ROWS };

    /// The integrals, half-space part included, at radius i and depth k.
    AxisIntegrals integrals(Index i, Index k) const;
    bool hasConverged(Index i, Index k) const;
    AxisymmetricResponse response(Index i, Index k, double pressure) const;

    const Structure& structure_;
    std::span<const double> radii_;
    Index depths_;
    double tolerance_;
    Kernel kernel_;
    std::vector<Place> places_;
    std::vector<AxisIntegrals> closedForm_;  // [depth * radii + radius], zero below the surface layer
    MatrixXd sum0_, sum1_;                   // radius x (depth, row)
    MatrixXd size0_, size1_;                 // sums of absolute values
    MatrixXd change0_, change1_;             // those of this cycle
    Eigen::Array<bool, Eigen::Dynamic, Eigen::Dynamic> converged_;
    int cycles_ = 0;
};

Integration::Integration(const Structure& structure, double a, std::span<const double> radii,
                         std::span<const Depth> depths, double tolerance)
    : structure_(structure),
      radii_(radii),
      depths_(static_cast<Index>(depths.size())),
      tolerance_(tolerance),
      kernel_(structure) {
    const auto rows = static_cast<Index>(radii.size());
    sum0_ = size0_ = change0_ = MatrixXd::Zero(rows, J0_ROWS * depths_);
    sum1_ = size1_ = change1_ = MatrixXd::Zero(rows, J1_ROWS * depths_);
    const bool homogeneous = structure.layers.size() == 1;
    converged_.setConstant(rows, depths_, homogeneous);
    for (const Depth& depth : depths) {
        places_.push_back(findPlace(structure, depth));
        for (double r : radii)
            closedForm_.push_back(places_.back().layer == 0 ? halfSpaceIntegrals(structure.layers[0].poisson,
                                                                                 a, r, places_.back().below)
                                                            : AxisIntegrals{});
    }
}

void Integration::add(const Nodes& nodes, const BesselTables& tables) {
    const auto count = static_cast<Index>(nodes.m.size());
    MatrixXd kernel0(J0_ROWS * depths_, count), kernel1(J1_ROWS * depths_, count);
    for (Index j = 0; j < count; ++j) {
        const double m = nodes.m[static_cast<std::size_t>(j)];
        kernel_.solve(m);
        for (Index k = 0; k < depths_; ++k) {
            const State y = kernel_.at(places_[static_cast<std::size_t>(k)]);
            kernel0.block<J0_ROWS, 1>(J0_ROWS * k, j) << y(0) / m, y(2), y(1);
            kernel1.block<J1_ROWS, 1>(J1_ROWS * k, j) << y(1), m * y(3);
        }
    }
    sum0_.noalias() += tables.j0 * kernel0.transpose();
    sum1_.noalias() += tables.j1byX * kernel1.transpose();
    change0_.noalias() += tables.absoluteJ0 * kernel0.cwiseAbs().transpose();
    change1_.noalias() += tables.absoluteJ1byX * kernel1.cwiseAbs().transpose();
}

void Integration::endCycle() {
    ++cycles_;
    size0_ += change0_;
    size1_ += change1_;
    for (Index k = 0; k < depths_; ++k)
        for (Index i = 0; i < converged_.rows(); ++i) converged_(i, k) = hasConverged(i, k);
    change0_.setZero();
    change1_.setZero();
}

/// Converged when the cycle's integrand, taken by its absolute value so that no chance zero deceives, adds
/// less than the tolerance; or less than the rounding error of what was summed already. Strains are
/// judged by themselves, since under a nearly uniform pressure they are small beside stress/E.
bool Integration::hasConverged(Index i, Index k) const {
    constexpr double ROUNDING = 1e-15;
    const AxisIntegrals f = integrals(i, k);
    const double r = radii_[static_cast<std::size_t>(i)];
    const double nu =
        structure_.layers[static_cast<std::size_t>(places_[static_cast<std::size_t>(k)].layer)].poisson;
    const double strain =
        std::max({std::abs(f.spread), std::abs(f.hoop), std::abs(f.t), (1 - 2 * nu) * std::abs(f.s)});
    const double stress = std::max(strain, std::abs(f.s));

    const auto small = [&](double change, double scale, double size) {
        return change <= std::max(tolerance_ * scale, ROUNDING * size);
    };
    const Index c0 = J0_ROWS * k, c1 = J1_ROWS * k;
    return small(change0_(i, c0 + W_BY_M), std::abs(f.w), size0_(i, c0 + W_BY_M)) &&
           small(change0_(i, c0 + S), stress, size0_(i, c0 + S)) &&
           small(change0_(i, c0 + U), strain, size0_(i, c0 + U)) &&
           small(change1_(i, c1 + HOOP_U), strain, size1_(i, c1 + HOOP_U)) &&
           small(r * change1_(i, c1 + M_T), strain, r * size1_(i, c1 + M_T));
}

AxisIntegrals Integration::integrals(Index i, Index k) const {
    AxisIntegrals f = closedForm_[static_cast<std::size_t>(k * converged_.rows() + i)];
    f.w += sum0_(i, J0_ROWS * k + W_BY_M);
    f.spread += sum0_(i, J0_ROWS * k + U);
    f.hoop += sum1_(i, J1_ROWS * k + HOOP_U);
    const Place& place = places_[static_cast<std::size_t>(k)];
    if (place.layer == 0 && place.below == 0) return f;  // the load is in the half-space part: keep it exact
    f.s += sum0_(i, J0_ROWS * k + S);
    f.t += radii_[static_cast<std::size_t>(i)] * sum1_(i, J1_ROWS * k + M_T);
    return f;
}

AxisymmetricResponse Integration::response(Index i, Index k, double pressure) const {
    const AxisIntegrals f = integrals(i, k);
    const Layer& layer =
        structure_.layers[static_cast<std::size_t>(places_[static_cast<std::size_t>(k)].layer)];
    const double nu = layer.poisson;
    const double flexibility = pressure * (1 + nu) / layer.modulus;  // q / (2 G)
    const double radial = f.spread - f.hoop;                         // 2 G err
    const double vertical = ((1 - 2 * nu) * f.s - nu * f.spread) / (1 - nu);
    const double common = nu / (1 - nu) * (f.s + f.spread);  // lambda times the dilatation

    AxisymmetricResponse y;
    y.w = flexibility * f.w;
    y.u = flexibility * f.hoop * radii_[static_cast<std::size_t>(i)];
    y.srr = -pressure * (common + radial);  // from here on positive in compression
    y.stt = -pressure * (common + f.hoop);
    y.szz = -pressure * f.s;
    y.srz = 0 - pressure * f.t;  // 0 - x, so that no shear is 0, not -0
    y.err = -flexibility * radial;
    y.ett = -flexibility * f.hoop;
    y.ezz = -flexibility * vertical;
    y.erz = 0 - flexibility * f.t;
    y.converged = converged_(i, k);
    return y;
}

AxisymmetricResult Integration::result(double pressure) const {
    AxisymmetricResult result{{}, cycles_, done()};
    for (Index i = 0; i < converged_.rows(); ++i)
        for (Index k = 0; k < depths_; ++k) result.responses.push_back(response(i, k, pressure));
    return result;
}

/// What is left out after the last cycle is less than some ten times that cycle's part, hence the factor 0.1.
double integrationTolerance(const Control& control) { return 0.1 * std::min(1e-7, 1e-4 * control.tolerance); }

}  // namespace

std::vector<AxisymmetricResult> solveAxisymmetric(std::span<const Structure> structures, double radius,
                                                  double pressure, std::span<const double> radii,
                                                  std::span<const Depth> depths, const Control& control) {
    checkArguments(structures, radius, pressure, depths, control);
    checkRadii(radii);

    std::vector<Integration> integrations;
    double longest = radius;
    for (const Structure& s : structures) {
        integrations.emplace_back(s, radius, radii, depths, integrationTolerance(control));
        longest = std::max(longest, longestLength(s, depths));
    }
    const double farthest = radii.empty() ? 0 : std::ranges::max(radii);
    Cycles cycles(radius, farthest, longest);
    const int limit = std::min(control.maxCycles, 100);
    const auto isDone = [](const Integration& i) { return i.done(); };
    for (int cycle = 0; cycle < limit && !std::ranges::all_of(integrations, isDone); ++cycle) {
        std::vector<Integration*> active;
        for (Integration& i : integrations)
            if (!i.done()) active.push_back(&i);
        cycles.next([&](const Nodes& nodes) {
            const BesselTables tables = besselTables(nodes, radius, radii);
            for (Integration* i : active) i->add(nodes, tables);
        });
        for (Integration* i : active) i->endCycle();
    }

    std::vector<AxisymmetricResult> results;
    for (const Integration& i : integrations) results.push_back(i.result(pressure));
    return results;
}

}  // namespace layered_theory
