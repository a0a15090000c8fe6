// Several equal wheels: each response of one wheel is turned from its cylinder coordinates into x, y and
// added.
#include <Eigen/Eigenvalues>
#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "solvers/layered_theory/checks.h"
#include "solvers/layered_theory/layered_theory.h"

namespace layered_theory {

namespace {

/// Cylinder components at direction (c, s) = (cos, sin) added to a tensor in x, y, z.
void addTurned(Tensor& t, double c, double s, double rr, double tt, double zz, double rz) {
    t.xx += rr * c * c + tt * s * s;
    t.yy += rr * s * s + tt * c * c;
    t.zz += zz;
    t.xy += (rr - tt) * c * s;
    t.xz += rz * c;
    t.yz += rz * s;
}

/// Every point seen from every wheel; equal distances, common with wheels in a row, are calculated once.
class Distances {
  public:
    Distances(std::span<const Position> points, std::span<const Position> wheels) {
        for (const Position& p : points)
            for (const Position& w : wheels) radii_.push_back(std::hypot(p.x - w.x, p.y - w.y));
        std::ranges::sort(radii_);
        radii_.erase(std::ranges::unique(radii_).begin(), radii_.end());
    }
    std::span<const double> radii() const { return radii_; }
    std::size_t index(double r) const {
        return static_cast<std::size_t>(std::ranges::lower_bound(radii_, r) - radii_.begin());
    }

  private:
    std::vector<double> radii_;
};

}  // namespace

std::array<double, 3> principalValues(const Tensor& t) {
    Eigen::Matrix3d matrix;
    matrix << t.xx, t.xy, t.xz, t.xy, t.yy, t.yz, t.xz, t.yz, t.zz;
    const Eigen::Vector3d values =
        Eigen::SelfAdjointEigenSolver<Eigen::Matrix3d>(matrix, Eigen::EigenvaluesOnly).eigenvalues();
    return {values(2), values(1), values(0)};
}

std::vector<Result> solve(std::span<const Structure> structures, const Load& load,
                          std::span<const Position> points, std::span<const Depth> depths,
                          const Control& control) {
    if (load.wheels.empty()) throw std::invalid_argument("A load needs at least one wheel.");
    checkPositions(load.wheels, "Wheel");
    checkPositions(points, "Point");
    const Distances distances(points, load.wheels);
    const std::vector<AxisymmetricResult> single =
        solveAxisymmetric(structures, load.radius, load.pressure, distances.radii(), depths, control);

    std::vector<Result> results;
    for (const AxisymmetricResult& one : single) {
        Result result{{}, one.cycles, one.converged};
        for (const Position& p : points) {
            for (std::size_t k = 0; k < depths.size(); ++k) {
                Response sum{};
                sum.converged = true;
                for (const Position& wheel : load.wheels) {
                    const double dx = p.x - wheel.x, dy = p.y - wheel.y, r = std::hypot(dx, dy);
                    const AxisymmetricResponse& y = one.responses[distances.index(r) * depths.size() + k];
                    const double c = r > 0 ? dx / r : 1, s = r > 0 ? dy / r : 0;
                    sum.w += y.w;
                    addTurned(sum.stress, c, s, y.srr, y.stt, y.szz, y.srz);
                    addTurned(sum.strain, c, s, y.err, y.ett, y.ezz, y.erz);
                    sum.converged = sum.converged && y.converged;
                }
                sum.principalStress = principalValues(sum.stress);
                sum.principalStrain = principalValues(sum.strain);
                result.responses.push_back(sum);
            }
        }
        results.push_back(std::move(result));
    }
    return results;
}

}  // namespace layered_theory
