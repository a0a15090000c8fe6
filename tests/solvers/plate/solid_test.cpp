// Slabs on solid and layered foundations.
#include "closed_forms.h"
#include "solved.h"

namespace plate {
namespace {

using enum FoundationKind;

Problem onSolid(std::vector<double> x, std::vector<double> y) {
    Problem p = oneSlab(std::move(x), std::move(y));
    p.foundation.kind = Solid;
    return p;
}

/// -1..1 with lines towards both ends.
std::vector<double> punchLines(double side, int half) {
    std::vector<double> at;
    for (int i = -half; i <= half; ++i)
        at.push_back(side / 2 * (1 + std::sin(std::numbers::pi / 2 * i / half)));
    return at;
}

// A rigid square of side b sinks by P (1 - PR^2) / (pi YM C), C = 0.36678919 b being the
// capacity of the square plate (Hwang and Mascagni, 2004).
TEST(PlateSolid, RigidSquarePunch) {
    Problem p = onSolid(punchLines(100, 8), punchLines(100, 8));
    p.layers[0].YM = 4e10;
    p.FF = {{nodeAt(p, 8, 8), 1000}};
    const Solution s = solved(p);
    EXPECT_NEAR(at(s, 1).w / (1000 * 0.84 / (std::numbers::pi * 1e4 * 36.678919)), 1, 2e-3);
}

TEST(PlateSolid, InteriorAgainstHankelIntegral) {
    Problem p = onSolid(graded(400, 22, 1.13), graded(400, 22, 1.13));
    p.NODSX = rowAt(p, 0);
    p.NODSY = columnAt(p, 0);
    p.groups = {{{1, 0, 10, 0, 10, 100}}};
    const Solution s = solved(p);
    const Centre exact = infinitePlate(p.layers[0], 100, 10, [](double m) { return m * 1e4 / (2 * 0.84); });
    EXPECT_NEAR(at(s, 1).w / exact.w, 1, 0.01);
    EXPECT_NEAR(at(s, 1).layers[0].mx / exact.moment, 1, 0.01);
}

// A quarter with two axes of symmetry is the full slab, on all foundations.
TEST(PlateSolid, QuarterIsTheWhole) {
    for (FoundationKind kind : {Liquid, Solid, Layer}) {
        Problem full = oneSlab({0, 10, 25, 60, 95, 110, 120}, {0, 20, 48, 76, 96});
        if (kind == Layer) full.foundation = layered(5e4, 1e4);
        full.foundation.kind = kind;
        full.TEMP = 10, full.CT = 5e-6;
        Problem quarter = full;
        quarter.slabs[0] = {{0, 35, 50, 60}, {0, 28, 48}, {}};
        quarter.NODSX = rowAt(quarter, 0);
        quarter.NODSY = columnAt(quarter, 0);
        full.groups = {{{1, 50, 70, 40, 56, 80}}};
        quarter.groups = {{{1, 0, 10, 0, 8, 80}}};
        const Solution a = solved(full), b = solved(quarter);
        const double scale = at(a, nodeAt(full, 3, 2)).w;
        for (int i = 0; i < 4; ++i)
            for (int j = 0; j < 3; ++j) {
                const NodeResult &whole = at(a, nodeAt(full, 3 + i, 2 + j)),
                                 &part = at(b, nodeAt(quarter, i, j));
                EXPECT_NEAR(part.w, whole.w, 1e-9 * scale);
                const LayerResult &l = part.layers[0], &m = whole.layers[0];
                for (const auto& [s, t] : {std::pair(l.sx, m.sx), {l.sxy, m.sxy}, {l.s1, m.s1}, {l.s2, m.s2}})
                    EXPECT_NEAR(s, t, 1e-8 * largestStress(a.cases[0]));
            }
    }
}

// Layers of equal constants are the half-space; a stiff or soft one lies on its side of it; under a thick
// stiff layer, seen from afar, only the base counts.
TEST(PlateSolid, LayersAgainstHalfSpace) {
    Problem p = onSolid(lines(120, 8), lines(96, 6));
    p.groups = {{{1, 0, 20, 0, 20, 80}}};
    const Solution solid = solved(p);
    p.foundation = layered(1e4, 1e4);
    EXPECT_LT(difference(solid.cases[0], solved(p).cases[0]), 1e-9);
    p.foundation = layered(5e4, 1e4);
    EXPECT_LT(at(solved(p), 1).w, 0.95 * at(solid, 1).w);

    const SurfaceKernel kernel = surfaceKernel(layered(5e4, 1e4));
    for (double r : {2000., 20000.}) {
        const double base = 0.84 / (std::numbers::pi * 1e4 * r), top = 0.84 / (std::numbers::pi * 5e4 * r);
        EXPECT_NEAR((kernel.smooth(r) + top) / base, 1, 1e-3) << r;
    }
}

// The foundation's matrix against brute force: the kernel itself at Gauss points of both areas.
TEST(PlateSolid, FlexibilityOfLayersByPoints) {
    Problem p = onSolid({0, 20, 32, 40}, {0, 12, 30});
    p.foundation = layered(5e4, 1e4);
    const Mesh mesh = makeMesh(p);
    const SurfaceKernel kernel = surfaceKernel(p.foundation);
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

// A season scales the stiffness of the ground: half of it is the ground of half the modulus.
TEST(PlateSolid, Season) {
    Problem p = onSolid(lines(120, 6), lines(96, 4));
    p.groups = {{{1, 0, 20, 0, 20, 80}}};
    p.FSAF = {1, 0.5};
    const Solution s = solved(p);
    p.foundation.YMS = 5e3;
    EXPECT_LT(difference(s.cases[1], solved(p).cases[0]), 1e-9);
    EXPECT_GT(difference(s.cases[0], s.cases[1]), 0.1);
}

}  // namespace
}  // namespace plate
