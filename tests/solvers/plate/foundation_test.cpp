// The ground under the slabs: half-spaces, layers, seasons, values at nodes.
#include <numbers>

#include "solved.h"

namespace plate {
namespace {

using enum FoundationKind;

// A rigid square of side b sinks by P (1 - PR^2) / (pi YM C), C = 0.36678919 b being the
// capacity of the square plate (Hwang and Mascagni, 2004).
TEST(PlateGround, RigidSquarePunch) {
    std::vector<double> grid;  // lines towards both ends
    for (int i = -8; i <= 8; ++i) grid.push_back(50 * (1 + std::sin(std::numbers::pi / 16 * i)));
    Problem p = oneSlab(grid, grid);
    p.foundation.kind = Solid;
    p.layers[0].YM = 4e10;
    p.FF = {{nodeAt(p, 8, 8), 1000}};
    const Solution s = solved(p);
    EXPECT_NEAR(at(s, 1).w / (1000 * 0.84 / (std::numbers::pi * 1e4 * 36.678919)), 1, 2e-3);
}

// Under a thick stiff layer, seen from afar, only the base counts.
TEST(PlateGround, LayersFarAway) {
    const SurfaceKernel kernel = surfaceKernel(layered(5e4, 1e4));
    for (double r : {2000., 20000.}) {
        const double base = 0.84 / (std::numbers::pi * 1e4 * r), top = 0.84 / (std::numbers::pi * 5e4 * r);
        EXPECT_NEAR((kernel.smooth(r) + top) / base, 1, 1e-3) << r;
    }
}

// The foundation's matrix against brute force: the kernel itself at Gauss points of both areas.
TEST(PlateGround, FlexibilityOfLayersByPoints) {
    const Mesh mesh = makeMesh(oneSlab({0, 20, 32, 40}, {0, 12, 30}));
    const SurfaceKernel kernel = surfaceKernel(layered(5e4, 1e4));
    SurfaceKernel bare = kernel;
    bare.smooth = {};
    const Matrix smooth = flexibility(mesh, kernel, {}) - flexibility(mesh, bare, {});
    const auto mean = [&](const Rectangle& a, const Rectangle& b) {
        const auto along = [](double low, double high, const GaussPoint& g) {
            return (low + high + g.at * (high - low)) / 2;
        };
        double sum = 0;
        for (const auto& g : gauss4)
            for (const auto& h : gauss4)
                for (const auto& k : gauss4)
                    for (const auto& l : gauss4)
                        sum += g.weight * h.weight * k.weight * l.weight / 16 *
                               kernel.smooth(std::hypot(along(a.x0, a.x1, g) - along(b.x0, b.x1, h),
                                                        along(a.y0, a.y1, k) - along(b.y0, b.y1, l)));
        return sum;
    };
    for (const auto& [i, j] : {std::pair{0, 0}, {0, 1}, {4, 4}, {0, 11}})
        EXPECT_NEAR(smooth(i, j) / mean(mesh.nodes[static_cast<std::size_t>(i)].tributary,
                                        mesh.nodes[static_cast<std::size_t>(j)].tributary),
                    1, 1e-4)
            << i << ' ' << j;
}

// A season scales the stiffness of the ground, which nodes may have of their own on a liquid one.
TEST(PlateGround, SeasonsAndModuliAtNodes) {
    for (FoundationKind kind : {Liquid, Solid}) {
        Problem p = curled(kind);
        p.groups = {{{1, 10, 30, 0, 20, 80}}, {{1, 0, 120, 0, 96, 1}}};
        p.FSAF = {1, 0.5, 1};
        const Solution s = solved(p);
        p.FSAF = {1};
        p.foundation.YMS = 5e3;
        p.foundation.SUBMOD = 1;
        for (int n = 1; n <= 90; ++n) p.foundation.NS.push_back({n, 50});
        const Solution soft = solved(p);
        for (std::size_t g : {0u, 1u}) {
            EXPECT_LT(difference(s.cases[2 + g], soft.cases[g]), 1e-12);
            EXPECT_EQ(difference(s.cases[g], s.cases[4 + g]), 0) << "equal seasons, equal bits";
        }
        EXPECT_GT(difference(s.cases[0], s.cases[2]), 0.1);
    }
}

TEST(PlateGround, ThicknessesAtNodes) {
    Problem layers = oneSlab(lines(120, 6), lines(96, 4), {{1, 10, 30, 0, 20, 80}});
    layers.layers = {{6, 0.15, 4e6, 0}, {4, 0.15, 2e6, 0}};
    Problem named = layers;
    layers.layers[0].T = 12, layers.layers[1].T = 5;
    for (int n = 1; n <= 35; ++n) named.NT1.push_back({n, 12}), named.NT2.push_back({n, 5});
    EXPECT_LT(difference(solved(layers).cases[0], solved(named).cases[0]), 1e-12);
}

}  // namespace
}  // namespace plate
