// What must hold whatever the layers are: equilibrium, continuity, symmetry, reciprocity; and the contract of
// the functions: units, signs, refusals, the limit of cycles.
#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <stdexcept>

#include "solvers/layered_theory/layered_theory.h"

namespace {

using namespace layered_theory;
using std::numbers::pi;

const Structure ROAD{{{4, 400000, 0.35}, {8, 20000, 0.4}, {6, 60000, 0.5}, {0, 6000, 0.45}},
                     {true, false, true}};

std::vector<AxisymmetricResponse> solveOne(const Structure& s, std::vector<double> radii,
                                           std::vector<Depth> depths, double a = 5, double q = 70,
                                           Control control = {}) {
    return solveAxisymmetric({&s, 1}, a, q, radii, depths, control)[0].responses;
}

/// INT f(r) r dr from 0 to `end` by Simpson's rule, f given at equal steps.
template <class Value>
double radialIntegral(const std::vector<AxisymmetricResponse>& y, double end, Value value) {
    const std::size_t n = y.size() - 1;
    const double h = end / static_cast<double>(n);
    double sum = 0;
    for (std::size_t i = 0; i <= n; ++i)
        sum += (i == 0 || i == n ? 1 : i % 2 ? 4 : 2) * value(y[i]) * h * static_cast<double>(i);
    return sum * h / 3;
}

TEST(Equilibrium, pressureCarriesLoadAtEveryDepth) {
    const double a = 5, q = 70, end = 400;
    std::vector<double> radii;
    for (int i = 0; i <= 400; ++i) radii.push_back(end * i / 400);
    const std::vector<Depth> depths{{2}, {12}, {18}, {30}};
    for (const Depth& d : depths) {
        const double load =
            2 * pi * radialIntegral(solveOne(ROAD, radii, {d}, a, q), end, [](auto& y) { return y.szz; });
        EXPECT_NEAR(load / (pi * a * a * q), 1, 1e-3)
            << d.z;  // what lies beyond `end` is of the order (z / end)^3
    }
}

// Local equilibrium and strains as derivatives, by central differences: catches any wrong sign or factor.
TEST(Equilibrium, holdsLocally) {
    const double r = 6, h = 1e-3;
    for (double z : {1.0, 7.0, 15.0, 25.0}) {
        const auto y = solveOne(ROAD, {r - h, r, r + h}, {{z - h}, {z}, {z + h}});
        const auto &left = y[1], &up = y[3], &here = y[4], &down = y[5], &right = y[7];
        const auto alongR = [&](double AxisymmetricResponse::*f) { return (right.*f - left.*f) / (2 * h); };
        const auto alongZ = [&](double AxisymmetricResponse::*f) { return (down.*f - up.*f) / (2 * h); };
        using Y = AxisymmetricResponse;
        const double stress = std::abs(here.srr) + std::abs(here.szz), strain = std::abs(here.ezz);
        EXPECT_NEAR(alongR(&Y::srr) + (here.srr - here.stt) / r + alongZ(&Y::srz), 0, 1e-5 * stress);
        EXPECT_NEAR(alongR(&Y::srz) + here.srz / r + alongZ(&Y::szz), 0, 1e-5 * stress);
        EXPECT_NEAR(here.err, -alongR(&Y::u), 1e-5 * strain);
        EXPECT_NEAR(here.ett, -here.u / r, 1e-12 * strain);
        EXPECT_NEAR(here.ezz, -alongZ(&Y::w), 1e-5 * strain);
        EXPECT_NEAR(here.erz, -(alongR(&Y::w) + alongZ(&Y::u)) / 2, 1e-5 * strain);
    }
}

TEST(Interfaces, carryTractionsAndDisplacements) {
    const std::vector<double> radii{0, 2, 5, 30};
    const double bottoms[] = {4, 12, 18};
    for (int i = 0; i < 3; ++i) {
        const double z = bottoms[i];
        const auto y = solveOne(ROAD, radii, {{z, i}, {z, i + 1}, {z}});
        for (std::size_t k = 0; k < radii.size(); ++k) {
            const auto &above = y[3 * k], &below = y[3 * k + 1], &found = y[3 * k + 2];
            const double stress = std::max(std::abs(above.srr), std::abs(above.szz));
            EXPECT_EQ(found.srr, above.srr) << "an interface belongs to the upper layer";
            EXPECT_NEAR(above.szz, below.szz, 1e-8 * stress);
            EXPECT_NEAR(above.w, below.w, 1e-8 * std::abs(above.w));
            EXPECT_NEAR(above.srz, below.srz, 1e-8 * stress);
            if (ROAD.bonded[static_cast<std::size_t>(i)]) {
                EXPECT_NEAR(above.u, below.u, 1e-8 * std::abs(above.w));
            } else {
                EXPECT_NEAR(above.srz, 0, 1e-8 * stress);
                EXPECT_EQ(radii[k] > 0, std::abs(above.u - below.u) > 1e-3 * std::abs(above.w)) << "it slips";
            }
        }
    }
}

// Betti: each load does the same work on the other's deflection. The loads are circles of different size.
TEST(Reciprocity, ofTwoCircles) {
    const auto work = [](double a, double b,
                         double distance) {  // pressure 1 on circle b times w due to circle a
        std::vector<double> radii, weights;
        const int n = 12;
        for (int i = 0; i < n; ++i) {  // equal areas, and equal angles: exact enough for a smooth w
            const double rho = b * std::sqrt((i + 0.5) / n);
            for (int k = 0; k < 2 * n; ++k) {
                const double angle = pi * (k + 0.5) / n;
                radii.push_back(std::hypot(distance + rho * std::cos(angle), rho * std::sin(angle)));
            }
        }
        double sum = 0;
        for (const auto& y : solveOne(ROAD, radii, {{0}}, a, 1)) sum += y.w;
        return sum / static_cast<double>(radii.size()) * pi * b * b;
    };
    EXPECT_NEAR(work(5, 2, 12) / work(2, 5, 12), 1, 2e-5);
}

TEST(Wheels, turnAndAddTensors) {
    const double a = 5, q = 70, r = 9, angle = 0.6;
    const std::vector<Depth> depths{{3}, {20}};
    const Position wheel{2, -1}, point{wheel.x + r * std::cos(angle), wheel.y + r * std::sin(angle)};
    const auto one = solveOne(ROAD, {r}, depths, a, q);
    const Result single = solve({&ROAD, 1}, {a, q, {wheel}}, std::vector{point}, depths)[0];
    const Position opposite{2 * point.x - wheel.x, 2 * point.y - wheel.y};
    const Result pair = solve({&ROAD, 1}, {a, q, {wheel, opposite}}, std::vector{point}, depths)[0];
    for (std::size_t k = 0; k < depths.size(); ++k) {
        const Tensor& t = single.responses[k].stress;
        const double c = std::cos(angle), s = std::sin(angle), tiny = 1e-10 * q;
        EXPECT_NEAR(single.responses[k].w, one[k].w, 1e-10 * one[k].w);
        EXPECT_NEAR(t.xx * c * c + 2 * t.xy * c * s + t.yy * s * s, one[k].srr, tiny);
        EXPECT_NEAR(t.xx * s * s - 2 * t.xy * c * s + t.yy * c * c, one[k].stt, tiny);
        EXPECT_NEAR((t.yy - t.xx) * c * s + t.xy * (c * c - s * s), 0, tiny)
            << "no shear on the meridian plane";
        EXPECT_NEAR(t.xz * c + t.yz * s, one[k].srz, tiny);
        EXPECT_NEAR(t.yz * c - t.xz * s, 0, tiny);
        const auto& p = single.responses[k].principalStress;
        EXPECT_THAT(p, testing::WhenSortedBy(std::greater<>(), testing::ElementsAreArray(p)));
        EXPECT_NEAR(p[0] + p[1] + p[2], t.xx + t.yy + t.zz, tiny);
        EXPECT_NEAR(p[0] * p[0] + p[1] * p[1] + p[2] * p[2],
                    t.xx * t.xx + t.yy * t.yy + t.zz * t.zz + 2 * (t.xy * t.xy + t.xz * t.xz + t.yz * t.yz),
                    tiny * q);
        // Halfway between two wheels all doubles, but the vertical shears cancel.
        const Tensor &strain = single.responses[k].strain, &both = pair.responses[k].strain;
        const double small = 1e-10 * std::abs(strain.zz);
        EXPECT_NEAR(both.xy, 2 * strain.xy, small);
        EXPECT_NEAR(both.xx, 2 * strain.xx, small);
        EXPECT_NEAR(both.xz, 0, small);
        EXPECT_NEAR(pair.responses[k].w, 2 * one[k].w, 1e-10 * one[k].w);
        EXPECT_GT(one[k].srz, 0) << "compression positive, shear like the rest";
    }
}

TEST(Structures, inOneCallAreAsByThemselves) {
    Structure stiffer = ROAD;
    stiffer.layers[0].modulus *= 5;
    const std::vector<Structure> both{ROAD, stiffer};
    const std::vector<double> radii{0, 8};
    const std::vector<Depth> depths{{4}, {20}};
    const auto together = solveAxisymmetric(both, 5, 70, radii, depths);
    for (std::size_t i = 0; i < 2; ++i) {
        const auto alone = solveOne(both[i], radii, depths);
        for (std::size_t k = 0; k < alone.size(); ++k)
            EXPECT_NEAR(together[i].responses[k].szz, alone[k].szz, 1e-8 * 70);
    }
}

TEST(Cycles, limitIsToldWhereItMatters) {
    const std::vector<double> radii{0, 5};
    const std::vector<Depth> depths{{4}, {200}};
    const auto few = solveAxisymmetric({&ROAD, 1}, 5, 70, radii, depths, {1e-3, 4})[0];
    EXPECT_FALSE(few.converged);
    EXPECT_EQ(few.cycles, 4);
    EXPECT_FALSE(few.responses[0].converged);
    EXPECT_TRUE(few.responses[1].converged) << "deep below the first cycles are enough";
    const auto enough = solveAxisymmetric({&ROAD, 1}, 5, 70, radii, depths)[0];
    EXPECT_TRUE(enough.converged);
    EXPECT_GT(enough.cycles, 4);
    EXPECT_LT(enough.cycles, 20);
}

TEST(Refusals, nameTheOffender) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    struct Bad {
        const char* text;
        void (*spoil)(Structure&, Load&, std::vector<Position>&, std::vector<Depth>&, Control&);
    };
    // clang-format off
    const Bad cases[] = {
        {"at least one layer", [](auto& s, auto&, auto&, auto&, auto&) { s.layers.clear(); }},
        {"3 interfaces, but 2", [](auto& s, auto&, auto&, auto&, auto&) { s.bonded.pop_back(); }},
        {"Layer 2: the thickness", [](auto& s, auto&, auto&, auto&, auto&) { s.layers[1].thickness = -1; }},
        {"Layer 4: the modulus", [](auto& s, auto&, auto&, auto&, auto&) { s.layers[3].modulus = 0; }},
        {"Layer 1: Poisson's ratio", [](auto& s, auto&, auto&, auto&, auto&) { s.layers[0].poisson = 0.51; }},
        {"Layer 1: Poisson's ratio", [](auto& s, auto&, auto&, auto&, auto&) { s.layers[0].poisson = -1; }},
        {"contact radius", [](auto&, auto& l, auto&, auto&, auto&) { l.radius = 0; }},
        {"at least one wheel", [](auto&, auto& l, auto&, auto&, auto&) { l.wheels.clear(); }},
        {"Depth 2", [](auto&, auto&, auto&, auto& d, auto&) { d[1].z = -0.1; }},
        {"Depth 2: z = 6 is not in layer 3", [](auto&, auto&, auto&, auto& d, auto&) { d[1] = {6, 2}; }},
        {"no layer 5", [](auto&, auto&, auto&, auto& d, auto&) { d[1] = {50, 4}; }},
        {"tolerance", [](auto&, auto&, auto&, auto&, auto& c) { c.tolerance = 0; }},
        {"cycles", [](auto&, auto&, auto&, auto&, auto& c) { c.maxCycles = 0; }},
    };
    // clang-format on
    const auto attempt = [](auto spoil) {
        Structure s = ROAD;
        Load load{5, 70, {{0, 0}}};
        std::vector<Position> points{{0, 0}};
        std::vector<Depth> depths{{0}, {6}};
        Control control;
        spoil(s, load, points, depths, control);
        solve({&s, 1}, load, points, depths, control);
    };
    for (const Bad& bad : cases)
        EXPECT_THAT([&] { attempt(bad.spoil); },
                    testing::ThrowsMessage<std::invalid_argument>(testing::HasSubstr(bad.text)));

    const auto refusesNaN = [&](auto field) {
        EXPECT_THROW(attempt([&](auto&... all) { field(all...) = nan; }), std::invalid_argument);
    };
    refusesNaN([](auto& s, auto&, auto&, auto&, auto&) -> double& { return s.layers[0].thickness; });
    refusesNaN([](auto& s, auto&, auto&, auto&, auto&) -> double& { return s.layers[0].modulus; });
    refusesNaN([](auto& s, auto&, auto&, auto&, auto&) -> double& { return s.layers[0].poisson; });
    refusesNaN([](auto&, auto& l, auto&, auto&, auto&) -> double& { return l.pressure; });
    refusesNaN([](auto&, auto& l, auto&, auto&, auto&) -> double& { return l.wheels[0].y; });
    refusesNaN([](auto&, auto&, auto& p, auto&, auto&) -> double& { return p[0].x; });
    refusesNaN([](auto&, auto&, auto&, auto& d, auto&) -> double& { return d[0].z; });
    refusesNaN([](auto&, auto&, auto&, auto&, auto& c) -> double& { return c.tolerance; });
}

}  // namespace
