// The pieces on their own: element, section, dowel, potential of rectangles, fatigue.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "problems.h"
#include "solvers/plate/damage.h"
#include "solvers/plate/dowel.h"
#include "solvers/plate/element.h"

namespace plate {
namespace {

TEST(PlateElement, ReproducesEveryFieldOfItsPolynomials) {
    const auto field = [](double x, double y) {
        return std::array{2 + 3 * x * x - x * y + x * x * x * y - 2 * x * y * y * y + y * y * y,
                          6 * x - y + 3 * x * x * y - 2 * y * y * y,
                          -x + x * x * x - 6 * x * y * y + 3 * y * y};
    };
    const double a = 1.5, b = 0.7, x0 = 0.4, y0 = -0.9;
    Vector12 d;
    for (int c = 0; c < 4; ++c) {
        const auto [xi, eta] = corners[static_cast<std::size_t>(c)];
        const auto [w, wx, wy] = field(x0 + xi * a, y0 + eta * b);
        d.segment<3>(3 * c) << w, -wy, wx;
    }
    for (const auto& [xi, eta] : {std::pair{0.3, -0.8}, {-1., 1.}, {0., 0.}, {0.9, 0.2}}) {
        const double x = x0 + a * xi, y = y0 + b * eta;
        EXPECT_NEAR(shape(xi, eta, a, b).dot(d), field(x, y)[0], 1e-12);
        const Eigen::Vector3d k = curvature(xi, eta, a, b) * d;
        EXPECT_NEAR(k(0), -(6 + 6 * x * y), 1e-11);
        EXPECT_NEAR(k(1), -(-12 * x * y + 6 * y), 1e-11);
        EXPECT_NEAR(k(2), -2 * (-1 + 3 * x * x - 6 * y * y), 1e-11);
    }
}

// Composite section by hand: E2 = 2 E1, T1 = 4, T2 = 2, no Poisson's ratio: transformed
// widths 1 and 2, centroid at 3.5 from the top, I = 4^3/12 + 4 1.5^2 + 2 (2^3/12) + 4 1.5^2.
TEST(PlateSection, BondedAndUnbonded) {
    const std::vector<SlabLayer> layers{{4, 0, 1000, 0}, {2, 0, 2000, 0}};
    const double inertia = 64. / 12 + 9 + 16. / 12 + 9;
    const Section bonded = makeSection(layers, {4, 2}, true);
    EXPECT_NEAR(bonded.stiffness(0, 0), 1000 * inertia, 1e-9);
    EXPECT_NEAR(bonded.layer[0].bottom(0, 0), 1000 * 0.5, 1e-9);
    EXPECT_NEAR(bonded.layer[1].bottom(0, 0), 2000 * 2.5, 1e-9);
    EXPECT_NEAR(bonded.layer[0].moment(0, 0), 1000 * (64. / 12 + 9), 1e-9);
    const Section loose = makeSection(layers, {4, 2}, false);
    EXPECT_NEAR(loose.stiffness(0, 0), 1000 * 64. / 12 + 2000 * 8. / 12, 1e-9);
    EXPECT_NEAR(loose.layer[1].bottom(0, 0), 2000, 1e-9);
    // Different Poisson's ratios leave no in-plane force.
    const Section mixed = makeSection({{4, 0.1, 1000, 0}, {2, 0.4, 1000, 0}}, {4, 2}, true);
    EXPECT_NEAR((mixed.stiffness - mixed.stiffness.transpose()).norm(), 0, 1e-9);
}

// Without a gap both halves move by P / (2 beta^3 E I); a wide gap is a beam fixed at both
// ends, 12 E I / z^3, softened by shear.
TEST(PlateDowel, AgainstClosedForms) {
    const double E = 29e6, K = 1.5e6, d = 1, I = std::numbers::pi / 64;
    const double beta = std::pow(K * d / (4 * E * I), 0.25);
    EXPECT_NEAR(dowelStiffness({K, d, 0, E, 0.3}) / (beta * beta * beta * E * I), 1, 1e-12);
    const double z = 200, G = E / 2.6, A = std::numbers::pi / 4;
    const double clamped = 1 / (z * z * z / (12 * E * I) + z / (0.9 * G * A));
    EXPECT_NEAR(dowelStiffness({1e16, d, z, E, 0.3}) / clamped, 1, 0.01);
    // By hand for z = 0.2: beta 0.71642, y0 1.02366e-6, r0 7.8239e-7, bending 4.7e-10, shear 2.537e-8.
    EXPECT_NEAR(dowelStiffness({K, d, 0.2, E, 0.3}), 448506, 1);
}

TEST(PlateFlexibility, MeanPotentialOfRectangles) {
    const Rectangle unit{0, 1, 0, 1};
    // Mean of 1/r over a unit square: 4 asinh(1) + 4 (1 - sqrt 2) / 3.
    EXPECT_NEAR(meanInverseDistance(unit, unit), 4 * std::asinh(1.) + 4 * (1 - std::sqrt(2.)) / 3, 1e-13);
    // Cut in halves the mean stays, near (closed form) and far (moments), and across the change.
    for (double x : {1., 3., 22., 28.6, 40., 300.}) {
        const Rectangle p{x, x + 1, 2, 2.6}, left{x, x + 0.4, 2, 2.6}, right{x + 0.4, x + 1, 2, 2.6};
        const double cut = 0.4 * meanInverseDistance(left, unit) + 0.6 * meanInverseDistance(right, unit);
        EXPECT_NEAR(meanInverseDistance(p, unit) / cut, 1, 1e-9) << x;
    }
}

TEST(PlateDamage, AllowedRepetitions) {
    struct {
        double SR;
        std::optional<FatigueLaw> law;
        double N;
    } const rows[] = {
        {0.6, {}, 30959.9},
        {0.55, {}, 124351},
        {0.5, {}, 762042},
        {0.45, {}, INFINITY},
        {-0.9, {}, INFINITY},
        {0.5, {{16.61, 17.61}}, std::pow(10., 7.805)},
        {0.3, {{16.61, 17.61}}, std::pow(10., 11.327)},
        {0, {{16.61, 17.61}}, INFINITY},
    };
    for (const auto& [SR, law, N] : rows) EXPECT_NEAR(1 / allowedRepetitions(SR, law), 1 / N, 1e-3 / N) << SR;
}

TEST(PlateDamage, TellsAxlesApart) {
    const FatigueLaw law{4, 4};  // N = 10^(4 - 4 SR), PMR = 100
    struct {
        std::array<double, 3> tension;
        Axles axles;
        double damage;
    } const rows[] = {
        {{50, 20, 5}, Axles::Single, 1e-2},
        {{50, -8, -2}, Axles::Single, 1e-2},  // rises again, but not to an axle
        {{25, 50, 10}, Axles::Tandem, 1e-2 + 1e-3},
        {{-10, 50, 10}, Axles::Tandem, 2e-2},  // compression between: two full cycles
        {{45, 25, 50}, Axles::Tridem, 1e-2 + 2e-3},
        {{50, 25, 40}, Axles::Tridem, 1e-2 + 2e-3},  // the first wheel is the heaviest
    };
    for (const auto& r : rows) {
        const Passage p = passage(r.tension, 100, law);
        EXPECT_EQ(p.axles, r.axles);
        EXPECT_NEAR(p.damage / r.damage, 1, 1e-9);
    }
}

}  // namespace
}  // namespace plate
