#include "solvers/plate/damage.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace plate {

double allowedRepetitions(double SR, const std::optional<FatigueLaw>& law) {
    constexpr double unlimited = std::numeric_limits<double>::infinity();
    if (SR <= 0) return unlimited;
    if (law) return std::pow(10., law->F1 - law->F2 * SR);
    if (SR >= 0.55) return std::pow(10., 11.737 - 12.077 * SR);
    if (SR > 0.45) return std::pow(4.2577 / (SR - 0.4325), 3.268);
    return unlimited;
}

Passage passage(const std::array<double, 3>& tension, double PMR, const std::optional<FatigueLaw>& law) {
    const auto [first, second, third] = tension;
    Passage p{Axles::Single, first, 0, 0};
    double valley = 0;
    if (third > second && third > first / 2) {
        p.axles = Axles::Tridem;
        p.peak = std::max(first, third);
        valley = second;
    } else if (second > first) {
        p.axles = Axles::Tandem;
        p.peak = second;
        valley = first;
    }
    p.damage = 1 / allowedRepetitions(p.peak / PMR, law);
    if (p.axles != Axles::Single) {
        p.range = p.peak - std::max(valley, 0.);
        p.damage += (static_cast<int>(p.axles) - 1) / allowedRepetitions(p.range / PMR, law);
    }
    return p;
}

}  // namespace plate
