// The integrand is kernel x J(m r) x J1(m a). The Bessel functions turn by (r + a) dm; the kernel has poles
// off the real axis at distances of the order of m itself, so panels as long as m, or shorter, suit it.
#include "solvers/layered_theory/cycles.h"

#include <algorithm>
#include <boost/math/quadrature/gauss.hpp>
#include <cmath>
#include <numbers>
#include <span>

namespace layered_theory {

namespace {

/// A rule with n points integrates exp(i k x) over -1..1 with error (e k / 4 n)^(2n); `reach` is the k for
/// which that is 1e-13.
struct Rule {
    double reach;
    std::span<const double> abscissae, weights;  // half of the symmetric rule
};

template <unsigned n>
Rule rule(double reach) {
    using G = boost::math::quadrature::gauss<double, n>;
    return {reach, G::abscissa(), G::weights()};
}

const Rule& ruleFor(double turn) {
    static const std::array<Rule, 5> RULES{rule<10>(3.3), rule<15>(8.1), rule<20>(13.9), rule<25>(20.2),
                                           rule<30>(26.8)};
    const auto found = std::ranges::find_if(RULES, [&](const Rule& r) { return r.reach >= turn; });
    return found == RULES.end() ? RULES.back() : *found;
}

/// The kernel's own variation over a panel, as half an angle to be added to that of the Bessel functions.
constexpr double KERNEL_TURN = 6;
constexpr double LONGEST_TURN = 26.8 - KERNEL_TURN;
constexpr double GRADING = 3;  // ratio of neighbouring panel ends in the first cycle

/// Zero of J1, McMahon's expansion (Abramowitz and Stegun 1964, 9.5.12); 3e-4 off at worst, which does no
/// harm.
double zeroOfJ1(long number) {
    if (number == 0) return 0;
    const double beta = (static_cast<double>(number) + 0.25) * std::numbers::pi;
    return beta - 3 / (8 * beta) + 12 / std::pow(8 * beta, 3);
}

}  // namespace

std::vector<double> Cycles::panelEnds() {
    zero_ += 1 + zero_ / 8;
    to_ = zeroOfJ1(zero_) / radius_;

    std::vector<double> coarse{from_};
    if (cycle_ == 0) {
        const double levels = std::clamp(std::ceil(std::log(to_ * longest_) / std::log(GRADING)), 0.0, 20.0);
        for (double level = levels; level > 0; --level) coarse.push_back(to_ * std::pow(GRADING, -level));
    }
    coarse.push_back(to_);

    std::vector<double> ends{from_};
    for (std::size_t i = 1; i < coarse.size(); ++i) {
        const double length = coarse[i] - coarse[i - 1];
        const double count = std::ceil(length * frequency_ / 2 / LONGEST_TURN);
        for (double k = 1; k <= count; ++k) ends.push_back(coarse[i - 1] + length * k / count);
    }
    return ends;
}

void Cycles::appendPanel(double from, double to, Nodes& nodes) const {
    const double middle = (from + to) / 2, half = (to - from) / 2;
    const Rule& rule = ruleFor(half * frequency_ + KERNEL_TURN);
    for (std::size_t i = 0; i < rule.abscissae.size(); ++i) {
        const double x = rule.abscissae[i], weight = half * rule.weights[i];
        nodes.m.push_back(middle - half * x);
        nodes.weight.push_back(weight);
        if (x == 0) continue;
        nodes.m.push_back(middle + half * x);
        nodes.weight.push_back(weight);
    }
}

}  // namespace layered_theory
