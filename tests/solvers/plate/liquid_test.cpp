// Slabs on a liquid foundation against exact and published solutions.
#include "closed_forms.h"
#include "solved.h"

namespace plate {
namespace {

using enum FoundationKind;

// A free slab under even pressure or its weight sinks by q/k without bending, on any grid;
// parts of the pressure may cut the elements anywhere. Stress is measured by the one that
// the same load would cause over a span of the slab's size.
TEST(PlateLiquid, EvenPressureSinksWithoutStress) {
    Problem even = oneSlab({0, 5, 40, 41, 90, 120}, {0, 30, 33, 80});
    even.groups = {{{1, 0, 57.3, 0, 80, 2}, {1, 57.3, 120, 0, 11.1, 2}, {1, 57.3, 120, 11.1, 80, 2}}};
    Problem weight = oneSlab({0, 5, 40, 41, 90, 120}, {0, 30, 33, 80});
    weight.NWT = true;
    Problem weighed = weight;
    weighed.NCYCLE = 10;
    weighed.layers = {{6, 0.15, 4e6, 0.1}, {4, 0.3, 1e6, 0.05}};
    struct {
        const Problem& problem;
        double q;
    } const rows[] = {{even, 2}, {weight, 0.868}, {weighed, 0.8}};
    for (const auto& [problem, q] : rows) {
        const Solution s = solved(problem);
        for (const NodeResult& n : s.cases[0].nodes) EXPECT_NEAR(n.w / (q / 100), 1, 1e-9);
        EXPECT_LT(largestStress(s.cases[0]), 1e-6 * q * 100);
    }
}

// A stiff slab under a force off its centre tilts as a rigid body: p = P/A (1 + 12 ex x/a^2 ...).
TEST(PlateLiquid, StiffSlabTilts) {
    Problem p = oneSlab(lines(120, 5), lines(80, 4));
    p.layers[0].YM = 4e12;
    p.FF = {{nodeAt(p, 4, 1), 1000}};   // 36 right of and 20 below the centre
    p.FMX = {{nodeAt(p, 1, 1), 5000}};  // with ry = dw/dx: presses the right side down
    p.FMY = {{nodeAt(p, 2, 3), 7000}};  // with rx = -dw/dy: presses the lower side down
    const Solution s = solved(p);
    const double A = 120 * 80, mx = 1000 * 36 + 5000, my = -1000 * 20 - 7000;
    for (int i : {0, 2, 5})
        for (int j : {0, 3}) {
            const double x = 24 * i - 60, y = 20 * j - 40;
            const double w = (1000 / A + 12 * mx * x / (A * 120 * 120) + 12 * my * y / (A * 80 * 80)) / 100;
            EXPECT_NEAR(at(s, nodeAt(p, i, j)).w / w, 1, 1e-5);
        }
    EXPECT_NEAR(at(s, 1).ry, 12 * mx / (A * 120 * 120) / 100, 1e-9);
    EXPECT_NEAR(at(s, 1).rx, -12 * my / (A * 80 * 80) / 100, 1e-9);
}

// With temperature alone and next to no support a slab takes its free curvature, CT TEMP / T, edges
// up for a warm bottom, without stress: a patch test of the whole chain, thicknesses changing too.
TEST(PlateLiquid, FreeCurlHasNoStress) {
    Problem p = oneSlab({0, 13, 50, 60}, {0, 22, 30, 48});
    p.TEMP = 30;
    p.CT = 5e-6;
    p.foundation.SUBMOD = 0.01;
    const Solution s = solved(p);
    const double curvature = 5e-6 * 30 / 10, bow = curvature / 2 * (60 * 60 + 48 * 48 - 13 * 13 - 22 * 22);
    const NodeResult origin = at(s, 1);  // w = w0 + ry x - rx y - curvature (x^2 + y^2) / 2
    const double tilt = origin.ry * (13 - 60) - origin.rx * (22 - 48);
    EXPECT_NEAR((at(s, nodeAt(p, 1, 1)).w - at(s, nodeAt(p, 3, 3)).w - tilt) / bow, 1, 1e-4);
    EXPECT_LT(largestStress(s.cases[0]), 1e-4 * 4e6 * 5e-6 * 30);
    p.NT1 = {{nodeAt(p, 1, 1), 14}};
    EXPECT_GT(largestStress(solved(p).cases[0]), 1);  // a thick spot curls less than its surroundings
}

// Exact series in a slab between four axes of symmetry: the order of convergence is 2 for
// deflection and moment, and the finest grid is close.
TEST(PlateLiquid, ConvergesWithTheSquareOfTheElement) {
    std::vector<double> errorW, errorM;
    for (int n : {8, 16, 32}) {
        Problem p = oneSlab(lines(96, n), lines(72, n));
        p.groups = {{{1, 0, 48, 0, 36, 50}}};
        p.NODSX = joined(rowAt(p, 0), rowAt(p, n));
        p.NODSY = joined(columnAt(p, 0), columnAt(p, n));
        const Solution s = solved(p);
        const Guided exact = guidedSlab(p.layers[0], 100, 96, 72, 48, 36, 50, 24, 18);
        const NodeResult& node = at(s, nodeAt(p, n / 4, n / 4));
        errorW.push_back(std::abs(node.w / exact.w - 1));
        errorM.push_back(std::abs(node.layers[0].mx / exact.mx - 1));
        EXPECT_NEAR(node.layers[0].sx, -6 * node.layers[0].mx / 100, 1e-9 * std::abs(node.layers[0].sx));
    }
    for (const auto& e : {errorW, errorM}) {
        EXPECT_GT(std::log2(e[0] / e[1]), 1.7);
        EXPECT_GT(std::log2(e[1] / e[2]), 1.8);
        EXPECT_LT(std::log2(e[1] / e[2]), 2.5);
    }
    EXPECT_LT(errorW.back(), 2e-4);
    EXPECT_LT(errorM.back(), 2e-3);
}

// Quarter of a slab of 10 l, loaded at its middle by 20 x 20 in., against the infinite plate.
TEST(PlateLiquid, InteriorAgainstHankelIntegral) {
    Problem p = quarterSlab(graded(300, 32, 1.09), graded(300, 32, 1.09));
    p.groups = {{{1, 0, 10, 0, 10, 100}}};
    const Solution s = solved(p);
    const Centre exact = infinitePlate(p.layers[0], 100, 10, [](double) { return 100.; });
    EXPECT_NEAR(at(s, 1).w / exact.w, 1, 2e-3);
    EXPECT_NEAR(at(s, 1).layers[0].mx / exact.moment, 1, 5e-3);
    EXPECT_NEAR(at(s, 1).layers[0].sx, at(s, 1).layers[0].sy, 1e-6 * std::abs(at(s, 1).layers[0].sx));
}

TEST(PlateLiquid, Westergaard) {
    const double P = 10000, side = 16, q = P / side / side;
    Problem p = oneSlab(graded(300, 26, 1.08), graded(300, 26, 1.08));
    const Westergaard exact(p.layers[0], 100, P, side);

    Problem interior = p;
    interior.NODSX = rowAt(p, 0), interior.NODSY = columnAt(p, 0);
    interior.groups = {{{1, 0, side / 2, 0, side / 2, q}}};
    const NodeResult in = at(solved(interior), 1);
    EXPECT_NEAR(in.layers[0].sx / exact.interior().stress, 1, 0.02);
    EXPECT_NEAR(in.w / exact.interior().w, 1, 0.01);

    Problem edge = p;  // the edge is y = 0; the load stands half on either side of x = 0
    edge.NODSY = columnAt(p, 0);
    edge.groups = {{{1, 0, side / 2, 0, side, q}}};
    const NodeResult ed = at(solved(edge), 1);
    EXPECT_NEAR(ed.layers[0].sx / exact.edge().stress, 1, 0.05);
    EXPECT_NEAR(ed.w / exact.edge().w, 1, 0.03);

    Problem corner = p;
    corner.groups = {{{1, 0, side, 0, side, q}}};
    const Solution co = solved(corner);
    EXPECT_NEAR(at(co, 1).w / exact.corner().w, 1, 0.02);
    EXPECT_NEAR(largestStress(co.cases[0]) / -exact.corner().stress, 1, 0.1);
}

// Far from the edges E CT TEMP / (2 (1 - PR)), compression at a warm bottom; less across a strip.
TEST(PlateLiquid, CurlingOfInfiniteSlabAndLongStrip) {
    const double full = 4e6 * 5e-6 * 20 / (2 * 0.85);
    Problem wide = quarterSlab(graded(500, 20, 1.05), graded(500, 20, 1.05));
    wide.TEMP = 20;
    wide.CT = 5e-6;
    EXPECT_NEAR(at(solved(wide), 1).layers[0].sx / full, 1, 1e-3);

    Problem strip = oneSlab(lines(20, 2), lines(75, 50));  // half of b = 150 in.
    strip.TEMP = 20;
    strip.CT = 5e-6;
    strip.NODSX = rowAt(strip, 0);
    strip.NODSY = joined(columnAt(strip, 0), columnAt(strip, 2));
    const Solution s = solved(strip);
    const double factor = stripFactor(strip.layers[0], 100, 150);
    EXPECT_NEAR(at(s, 1).layers[0].sy / (full * (1 - factor)), 1, 1e-3);
    EXPECT_NEAR(at(s, 1).layers[0].sx / (full * (1 - 0.15 * factor)), 1, 1e-3);
    EXPECT_LT(at(s, nodeAt(strip, 0, 50)).w, 0);  // the warm bottom lifts the edge
}

// Season, moduli at nodes, thickness at nodes: what they stand for.
TEST(PlateLiquid, SeasonsModuliAndThicknesses) {
    Problem p = oneSlab(lines(120, 6), lines(96, 4));
    p.groups = {{{1, 10, 30, 0, 20, 80}}, {{1, 0, 120, 0, 96, 1}}};
    p.FSAF = {1, 0.5, 1};
    const Solution s = solved(p);
    Problem soft = p;
    soft.FSAF = {1};
    soft.foundation.SUBMOD = 1;
    for (int n = 1; n <= 35; ++n) soft.foundation.NS.push_back({n, 50});
    const Solution t = solved(soft);
    for (std::size_t g : {0u, 1u}) {
        EXPECT_LT(difference(s.cases[2 + g], t.cases[g]), 1e-12);
        EXPECT_EQ(difference(s.cases[g], s.cases[4 + g]), 0);  // equal seasons, equal bits
    }
    Problem thick = p, named = p;
    thick.layers[0].T = 12;
    for (int n = 1; n <= 35; ++n) named.NT1.push_back({n, 12});
    EXPECT_LT(difference(solved(thick).cases[0], solved(named).cases[0]), 1e-12);
}

// Bonded and unbonded pairs stand for one slab of the same stiffness; their stresses go by
// modulus and distance from the neutral axis.
TEST(PlateLiquid, LayeredSlabs) {
    Problem one = oneSlab(lines(120, 8), lines(96, 6));
    one.groups = {{{1, 10, 30, 0, 20, 80}}};
    Problem bonded = one, loose = one;
    bonded.layers = {{6, 0.15, 4e6, 0}, {4, 0.15, 4e6, 0}};
    bonded.NBOND = true;
    loose.layers = {{6, 0.15, 4e6, 0}, {4, 0.15, 2e6, 0}};
    one.layers[0].T = 10;
    const Solution a = solved(one), b = solved(bonded);
    EXPECT_LT(difference(a.cases[0], b.cases[0]), 1e-10);
    const LayerResult whole = at(a, 8).layers[0], top = at(b, 8).layers[0], low = at(b, 8).layers[1];
    EXPECT_NEAR(low.sx / whole.sx, 1, 1e-8);
    EXPECT_NEAR(top.sx / whole.sx, 0.2, 1e-8);  // 1 below the neutral axis at 5
    EXPECT_NEAR((top.mx + low.mx) / whole.mx, 1, 1e-8);
    const NodeResult n = at(solved(loose), 8);
    EXPECT_NEAR(n.layers[0].sx / n.layers[1].sx, 3, 1e-9);  // E T / 2: 12 to 4
    EXPECT_NEAR(n.layers[0].mx / n.layers[1].mx, 4 * 216 / (2 * 64.), 1e-9);
}

TEST(PlateProblem, SaysWhatIsWrong) {
    const Problem good = [] {
        Problem p = oneSlab(lines(120, 3), lines(96, 2));
        p.slabs.push_back(p.slabs[0]);
        p.slabs[0].JONO[1] = 1;
        p.slabs[1].JONO[0] = 1;
        p.joints.resize(1);
        return p;
    }();
    EXPECT_FALSE(check(good));
    static const std::vector<int> axis = {1, 4, 7, 10, 13, 16, 19, 22};
    Problem symmetric = good;
    symmetric.NODSX = axis;
    EXPECT_FALSE(check(symmetric));
    struct {
        const char* field;
        void (*spoil)(Problem&);
    } const rows[] = {
        {"X", [](Problem& p) { p.slabs[1].X[1] = 0; }},
        {"Y", [](Problem& p) { p.slabs[1].Y[1] = 50; }},
        {"JONO",
         [](Problem& p) {
             p.slabs[1].JONO = {0, 1, 0, 0};
         }},
        {"NNAJ",
         [](Problem& p) {
             p.joints[0] = {0, 0, 1e6, 1, 12, 0, 0, {1, 1}}, p.YMSB = 1;
         }},
        {"T", [](Problem& p) { p.layers[0].T = NAN; }},
        {"NODNC", [](Problem& p) { p.NODNC = {25}; }},
        {"NT1",
         [](Problem& p) {
             p.NT1 = {{0, 8}};
         }},
        {"FSAF",
         [](Problem& p) {
             p.FSAF = {1, 0};
         }},
        {"LS",
         [](Problem& p) {
             p.groups[0] = {{3, 0, 1, 0, 1, 1}};
         }},
        {"XL2",
         [](Problem& p) {
             p.groups[0] = {{2, 100, 121, 0, 1, 1}};
         }},
        {"YL2",
         [](Problem& p) {
             p.groups[0] = {{2, 0, 1, 50, 40, 1}};
         }},
        {"SUBMOD", [](Problem& p) { p.foundation.SUBMOD = 0; }},
        {"PRS", [](Problem& p) { p.foundation.kind = Solid, p.foundation.PRS = 0.6; }},
        {"NL", [](Problem& p) { p.foundation.kind = Layer; }},
        {"NODSX",
         [](Problem& p) {
             p.foundation.kind = Solid, p.NODSX = joined(axis, {3, 6, 9, 12, 15, 18, 21, 24});
         }},
        {"NODSX", [](Problem& p) { p.NODSX = rowAt(p, 0); }},     // goes on along slab 2
        {"NODSX", [](Problem& p) { p.NODSX = columnAt(p, 0); }},  // the other way
        {"NODSY", [](Problem& p) { p.NODSY = columnAt(p, 1); }},  // not at an edge
    };
    for (const auto& [field, spoil] : rows) {
        Problem p = good;
        spoil(p);
        const Solution s = solve(p);
        ASSERT_TRUE(s.fault) << field;
        EXPECT_EQ(s.fault->field, field);
        EXPECT_GT(s.fault->text.size(), 20u);
    }
}

}  // namespace
}  // namespace plate
