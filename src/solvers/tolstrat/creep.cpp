#include "solvers/tolstrat/creep.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using Eigen::Index;
using Eigen::VectorXd;

/// Singular values below this share of the largest count as none. Compliances have seven digits at best.
constexpr double RANK_THRESHOLD = 1e-7;

}  // namespace

double DirichletSeries::at(double t) const {
    double value = constant;
    for (std::size_t i = 0; i < retardation.size(); ++i)
        value += coefficients[i] * std::exp(-t / retardation[i]);
    return value;
}

Collocation::Collocation(std::span<const double> times) : times_(times.begin(), times.end()) {
    for (std::size_t i = 1; i < times_.size(); ++i)
        retardation_.push_back(std::sqrt(times_[i - 1] * times_[i]));
    const auto n = static_cast<Index>(times_.size());
    Eigen::MatrixXd terms = Eigen::MatrixXd::Ones(n, n);
    for (Index row = 0; row < n; ++row)
        for (Index i = 0; i + 1 < n; ++i)
            terms(row, i) =
                std::exp(-times_[static_cast<std::size_t>(row)] / retardation_[static_cast<std::size_t>(i)]);
    solver_.setThreshold(RANK_THRESHOLD);
    solver_.compute(terms);
}

DirichletSeries Collocation::fit(std::span<const double> values) const {
    const VectorXd x =
        solver_.solve(Eigen::Map<const VectorXd>(values.data(), static_cast<Index>(values.size())));
    return {retardation_, {x.data(), x.data() + x.size() - 1}, x(x.size() - 1)};
}

std::vector<double> Collocation::peakWeights(double duration) const {
    const double omega = 2 * std::numbers::pi / duration;
    VectorXd peaks(solver_.cols());
    for (std::size_t i = 0; i < retardation_.size(); ++i) {
        // omega/2 times the integral of exp(-s/T) sin(omega s) from 0 to pi/omega
        const double product = omega * retardation_[i];
        peaks(static_cast<Index>(i)) =
            (1 + std::exp(-std::numbers::pi / product)) / 2 * product * product / (1 + product * product);
    }
    peaks(peaks.size() - 1) = 1;
    const VectorXd weights = solver_.pseudoInverse().transpose() * peaks;
    return {weights.data(), weights.data() + weights.size()};
}

double Collocation::largestError(std::span<const double> values) const {
    constexpr int STEPS = 20;
    const DirichletSeries series = fit(values);
    double largest = 0;
    for (std::size_t i = 1; i < times_.size(); ++i) {
        for (int step = 0; step <= STEPS; ++step) {
            const double part = static_cast<double>(step) / STEPS;
            const double t = times_[i - 1] * std::pow(times_[i] / times_[i - 1], part);
            const double straight = values[i - 1] * std::pow(values[i] / values[i - 1], part);
            largest = std::max(largest, std::abs(series.at(t) / straight - 1));
        }
    }
    return largest;
}
