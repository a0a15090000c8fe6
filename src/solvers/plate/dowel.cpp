#include "solvers/plate/dowel.h"

#include <cmath>
#include <numbers>

namespace plate {

double dowelStiffness(const Dowel& bar) {
    using std::numbers::pi;
    const double z = bar.WJ, d = bar.BD;
    const double EI = bar.YMSB * pi * std::pow(d, 4) / 64;
    const double GA = bar.YMSB / (2 * (1 + bar.PRSB)) * pi * d * d / 4;
    const double beta = std::pow(bar.SCKV * d / (4 * EI), 0.25);
    const double face = (2 + beta * z) / (4 * beta * beta * beta * EI);
    const double rotation = (1 + beta * z) / (2 * beta * beta * EI);
    return 1 / (2 * face + z * rotation + z * z * z / (12 * EI) + z / (0.9 * GA));
}

}  // namespace plate
