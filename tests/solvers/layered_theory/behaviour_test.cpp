// What must hold whatever the layers are: equilibrium, continuity, symmetry, reciprocity; and the contract of
// the functions: units, signs, refusals, the limit of cycles.
#include <gmock/gmock.h>

#include <cmath>
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
    struct Call {
        Structure s = ROAD;
        Load load{5, 70, {{0, 0}}};
        std::vector<Position> points{{0, 0}};
        std::vector<Depth> depths{{0}, {6}};
        Control control{};
    };
    const struct {
        const char* text;
        void (*spoil)(Call&);
    } cases[] = {
        {"at least one layer", [](Call& c) { c.s.layers.clear(); }},
        {"3 interfaces, but 2", [](Call& c) { c.s.bonded.pop_back(); }},
        {"Layer 2: the thickness", [](Call& c) { c.s.layers[1].thickness = -1; }},
        {"Layer 1: the thickness", [](Call& c) { c.s.layers[0].thickness = NAN; }},
        {"Layer 4: the modulus", [](Call& c) { c.s.layers[3].modulus = 0; }},
        {"Layer 1: the modulus", [](Call& c) { c.s.layers[0].modulus = NAN; }},
        {"Layer 1: Poisson's ratio", [](Call& c) { c.s.layers[0].poisson = 0.51; }},
        {"Layer 1: Poisson's ratio", [](Call& c) { c.s.layers[0].poisson = -1; }},
        {"Layer 1: Poisson's ratio", [](Call& c) { c.s.layers[0].poisson = NAN; }},
        {"contact radius", [](Call& c) { c.load.radius = 0; }},
        {"contact pressure", [](Call& c) { c.load.pressure = NAN; }},
        {"at least one wheel", [](Call& c) { c.load.wheels.clear(); }},
        {"Wheel 1", [](Call& c) { c.load.wheels[0].y = NAN; }},
        {"Point 1", [](Call& c) { c.points[0].x = NAN; }},
        {"Depth 2", [](Call& c) { c.depths[1].z = -0.1; }},
        {"Depth 1", [](Call& c) { c.depths[0].z = NAN; }},
        {"Depth 2: z = 6 is not in layer 3", [](Call& c) { c.depths[1].layer = 2; }},
        {"no layer 5", [](Call& c) { c.depths[1].layer = 4; }},
        {"tolerance", [](Call& c) { c.control.tolerance = 0; }},
        {"tolerance", [](Call& c) { c.control.tolerance = NAN; }},
        {"cycles", [](Call& c) { c.control.maxCycles = 0; }},
    };
    for (const auto& [text, spoil] : cases) {
        Call c;
        spoil(c);
        const auto attempt = [&] { solve({&c.s, 1}, c.load, c.points, c.depths, c.control); };
        EXPECT_THAT(attempt, testing::ThrowsMessage<std::invalid_argument>(testing::HasSubstr(text)));
    }
}

}  // namespace
