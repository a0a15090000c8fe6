// Responses against closed forms and against the second calculation of reference.h.
#include <gtest/gtest.h>

#include <boost/multiprecision/cpp_bin_float.hpp>
#include <boost/multiprecision/eigen.hpp>

#include "solvers/layered_theory/kernel.h"
#include "solvers/layered_theory/reference.h"

namespace {

using namespace layered_theory;

AxisymmetricResult solveOne(const Structure& s, double a, double q, const std::vector<double>& radii,
                            const std::vector<Depth>& depths, const Control& control = {}) {
    return solveAxisymmetric({&s, 1}, a, q, radii, depths, control)[0];
}

/// Largest error, relative to the largest component of the same kind at the same place.
double error(const AxisymmetricResponse& y, const AxisymmetricResponse& right) {
    const auto worst = [](std::initializer_list<std::pair<double, double>> pairs) {
        double size = 0, difference = 0;
        for (const auto& [value, rightValue] : pairs) {
            size = std::max(size, std::abs(rightValue));
            const double d = std::abs(value - rightValue);
            difference = d <= difference ? difference : d;  // keeps NaN
        }
        return difference == 0 ? 0 : difference / size;
    };
    return std::max(
        {worst({{y.w, right.w}, {y.u, right.u}}),
         worst({{y.srr, right.srr}, {y.stt, right.stt}, {y.szz, right.szz}, {y.srz, right.srz}}),
         worst({{y.err, right.err}, {y.ett, right.ett}, {y.ezz, right.ezz}, {y.erz, right.erz}})});
}

struct Case {
    const char* name;
    Structure structure;
    std::vector<double> radii, depths;  // in contact radii
};
void PrintTo(const Case& c, std::ostream* out) { *out << c.name; }

const std::vector<double> RADII{0, 1e-9, 9e-4, 0.3, 0.999, 1, 1.001, 2.5, 10};
const std::vector<double> RADII_BUT_EDGE{0, 1e-9, 0.3, 0.999, 1.001, 10};

// clang-format off
const std::vector<Case> CASES{
    {"halfSpace", {{{0, 1, 0.3}}, {}}, RADII, {0.01, 1, 30}},
    {"halfSpaceIncompressible", {{{0, 1, 0.5}}, {}}, RADII, {0.1, 1}},
    {"halfSpaceJustBelowSurface", {{{0, 1, 0.3}}, {}}, {0, 0.9999, 1, 1.0001}, {1e-4}},
    {"halfSpaceSurface", {{{0, 1, 0.3}}, {}}, RADII_BUT_EDGE, {0}},
    {"stiffOverSoft", {{{1, 1000, 0.3}, {0, 1, 0.4}}, {}}, RADII, {0.1, 1, 1.001, 10, 100}},
    {"stiffOverSoftSurface", {{{1, 1000, 0.3}, {0, 1, 0.4}}, {}}, RADII_BUT_EDGE, {0}},
    {"softOverStiff", {{{1, 1, 0.5}, {0, 1000, 0.2}}, {}}, RADII, {0.5, 1, 1.001}},
    {"softOverStiffSurface", {{{1, 1, 0.5}, {0, 1000, 0.2}}, {}}, RADII_BUT_EDGE, {0}},
    {"softBetweenStiff", {{{1, 1000, 0.3}, {1, 1, 0.5}, {0, 1000, 0.2}}, {false, true}}, RADII, {0.5, 1, 1.001, 2, 3}},
    {"stiffBetweenSoftFrictionless", {{{1, 1, 0.3}, {1, 1000, 0.5}, {0, 1, 0.2}}, {false, false}}, RADII, {1, 1.001, 2, 3}},
    {"thinStiffSurfaceLayer", {{{0.1, 1000, 0.3}, {1, 1, 0.5}, {0, 10, 0.2}}, {}}, {0, 1, 3}, {0.1, 0.11}},
    {"thinSoftFrictionlessSurfaceLayer", {{{0.1, 1, 0.5}, {1, 1000, 0.3}, {0, 10, 0.2}}, {false, true}}, {0, 1, 3}, {0.1}},
    {"thinLubricantUnderPlate", {{{1, 1000, 0.3}, {0.001, 0.01, 0.5}, {0, 1000, 0.4}}, {true, false}}, RADII, {1, 1.0005, 1.001, 2}},
    {"auxeticLayers", {{{1, 10, -0.9}, {1, 1, -0.99}, {0, 10, -0.5}}, {}}, RADII, {1, 2, 3}},
    {"farPoints", {{{1, 100, 0.3}, {1, 10, 0.5}, {0, 1, 0.4}}, {}}, {30, 100}, {0, 1, 100}},
    {"equalLayers", {{{0.1, 2, 0.4}, {0.3, 2, 0.4}, {2, 2, 0.4}, {0, 2, 0.4}}, {}}, {0, 0.7, 20}, {0, 0.03, 0.1, 0.1001, 2.4, 7}},
    {"nineteenLayers", reference::nineteenLayers(1, 1), {0, 1, 5}, {0.2, 0.5, 3, 6}},
};
// clang-format on

class Accuracy : public testing::TestWithParam<Case> {};

TEST_P(Accuracy, againstSecondCalculation) {
    const Case& c = GetParam();
    const double a = 4.5, q = 80;  // not 1, so that a forgotten factor shows
    Structure s = c.structure;
    for (Layer& layer : s.layers) layer.thickness *= a;
    std::vector<double> radii;
    for (double r : c.radii) radii.push_back(r * a);
    std::vector<Depth> depths;
    for (double z : c.depths) depths.push_back({z * a});

    const AxisymmetricResult result = solveOne(s, a, q, radii, depths);
    EXPECT_TRUE(result.converged);
    for (std::size_t k = 0; k < depths.size(); ++k) {
        const std::vector<AxisymmetricResponse> right = reference::solve(s, a, q, radii, depths[k].z);
        for (std::size_t i = 0; i < radii.size(); ++i)
            EXPECT_LT(error(result.responses[i * depths.size() + k], right[i]), 1e-8)
                << "r = " << c.radii[i] << " a, z = " << c.depths[k] << " a";
    }
}

INSTANTIATE_TEST_SUITE_P(, Accuracy, testing::ValuesIn(CASES),
                         [](const auto& info) { return info.param.name; });

TEST(Tolerance, isFollowedDownwards) {
    const Structure s{{{1, 1000, 0.3}, {0, 1, 0.4}}, {}};
    const std::vector<double> radii{0, 1, 3};
    const AxisymmetricResult result = solveOne(s, 1, 1, radii, {{1}}, {1e-8, 80});
    const std::vector<AxisymmetricResponse> right = reference::solve(s, 1, 1, radii, 1);
    for (std::size_t i = 0; i < radii.size(); ++i) EXPECT_LT(error(result.responses[i], right[i]), 1e-12);
}

using Wide =
    boost::multiprecision::number<boost::multiprecision::cpp_bin_float<50>, boost::multiprecision::et_off>;

// A thin plate that slips on both sides is where four exponentials are worst told apart.
TEST(Kernel, keepsItsDigitsInThinLayers) {
    for (double h : {0.1, 1e-3, 1e-6}) {
        const Structure s{{{1, 1, 0.3}, {h, 1000, 0.4}, {0, 1, 0.4}}, {false, false}};
        Kernel kernel(s);
        for (double m = 1e-6; m < 20; m *= 3) {
            kernel.solve(m);
            const State y = kernel.at({1, h / 2});
            const auto right = reference::state<Wide>(s, Wide(m), 1 + h / 2, 1);
            for (int i = 0; i < 3; ++i)
                EXPECT_NEAR(y(i) / static_cast<double>(right(i)), 1, 1e-11) << h << ' ' << m << ' ' << i;
        }
    }
}

// At the edge on the surface the discontinuous components are the mean of both sides; w is continuous.
TEST(HalfSpace, edgeOnSurfaceIsMean) {
    const Structure s{{{5, 100, 0.3}, {0, 10, 0.4}}, {}};
    const double a = 3, step = 1e-7;
    const auto y = solveOne(s, a, 1, {a - step, a, a * (1 + 1e-15), a + step}, {{0}}).responses;
    EXPECT_EQ(y[0].szz, 1);
    EXPECT_EQ(y[3].szz, 0);
    for (const auto* edge : {&y[1], &y[2]}) {
        EXPECT_NEAR(edge->szz, 0.5, 1e-9);
        EXPECT_NEAR(edge->srr, (y[0].srr + y[3].srr) / 2, 1e-6);
        EXPECT_NEAR(edge->ezz, (y[0].ezz + y[3].ezz) / 2, 1e-8);
        EXPECT_NEAR(edge->w, (y[0].w + y[3].w) / 2, 1e-8);
    }
}

}  // namespace
