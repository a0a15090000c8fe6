// Functions of time as Dirichlet series, fitted by collocation: creep compliances, and step responses of
// viscoelastic layers, which a load that comes and goes superposes.
//
//   f(t) = sum over i < n of G_i exp(-t/T_i) + C,   T_i = sqrt(t_i t_(i+1)),   f(t_i) given for i = 1..n
//
// Retardation times between the times, not at them: a power law sampled twice a decade is then followed to
// some hundredths of a per cent between the times (Schapery 1962, Proc. 4th U.S. Nat. Congr. Appl. Mech., on
// collocation; the choice of the T_i is measured in the tests).
#pragma once

#include <Eigen/Dense>
#include <span>
#include <vector>

/// A fitted series.
struct DirichletSeries {
    std::vector<double> retardation;   ///< T_i, one less than there were times
    std::vector<double> coefficients;  ///< G_i
    double constant = 0;               ///< C, the value after a long time

    double at(double t) const;
};

/// A set of times with the series that it stands for.
class Collocation {
  public:
    /// @param times t > 0, increasing, at least one
    explicit Collocation(std::span<const double> times);

    /// False when times lie so close that the series is not determined by its values; then it is the one
    /// with the smallest coefficients.
    bool determined() const { return solver_.rank() == solver_.cols(); }

    /// The series through `values`, one a time.
    DirichletSeries fit(std::span<const double> values) const;

    /// What a load L(t) = sin^2(pi t / duration) leaves at its peak, t = duration/2, of a step response with
    /// `values`: the sum of weights times values. Superposition (Boltzmann): the integral of
    /// f(duration/2 - t) L'(t) from 0 to duration/2, in closed form for each term of the series.
    std::vector<double> peakWeights(double duration) const;

    /// The largest relative difference between the series through `values` (> 0) and straight lines
    /// through them in log-log scales, from the first to the last time; 0 for a single time.
    double largestError(std::span<const double> values) const;

  private:
    std::vector<double> times_, retardation_;
    Eigen::CompleteOrthogonalDecomposition<Eigen::MatrixXd> solver_;
};
