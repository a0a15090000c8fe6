// Slabs that lift: gaps, curling, weight, continuation.
#include <random>

#include "solved.h"

namespace plate {
namespace {

using enum FoundationKind;

/// Every node is in contact with pressure, or open without a force.
void expectConsistent(const Case& c) {
    for (std::size_t n = 0; n < c.nodes.size(); ++n) {
        EXPECT_GE(c.state.reaction[n], -1e-6);
        EXPECT_GE(c.state.gap[n], -1e-9);
        if (c.nodes[n].contact)
            EXPECT_EQ(c.state.gap[n], 0);
        else
            EXPECT_EQ(c.state.reaction[n], 0);
    }
}

TEST(PlateContact, CurledSlabLiftsItsCorners) {
    for (FoundationKind kind : {Liquid, Solid}) {
        const Solution s = solved(curled(kind));
        const Case& c = s.cases[0];
        expectConsistent(c);
        EXPECT_FALSE(at(s, 1).contact);
        EXPECT_TRUE(at(s, 41).contact);
        EXPECT_GT(c.contact.cycles, 1);
        EXPECT_FALSE(c.contact.ranOut);
        EXPECT_NEAR(c.equilibrium.reaction / (0.868 * 180 * 144), 1, 1e-9);
        EXPECT_NEAR(at(s, 1).w, at(s, 90).w, 1e-9 * std::abs(at(s, 1).w));  // symmetry survives
    }
}

// Without cycles tension is allowed; running out of them is told, and the check goes on to the same state.
TEST(PlateContact, CyclesRunOut) {
    Problem p = curled(Liquid);
    const Solution all = solved(p);
    p.NCYCLE = 2;
    const Solution few = solved(p);
    EXPECT_TRUE(few.cases[0].contact.ranOut);
    EXPECT_LT(difference(all.cases[0], few.cases[0]), 1e-12);
    p.NCYCLE = 1;
    const Solution full = solved(p);
    EXPECT_FALSE(full.cases[0].contact.checked);
    EXPECT_LT(at(full, 1).reaction, 0);
}

// Random gaps, curling and loads. Large gaps first pull the slab down, so that the rule takes out nodes
// elsewhere, too, and leaves them inside the foundation; the check lets them return, and counts.
TEST(PlateContact, RandomGapsEndConsistent) {
    std::mt19937 generator(1);
    const auto random = [&] { return static_cast<double>(generator()) / 4294967296.; };
    int corrected = 0;
    for (int trial = 0; trial < 80; ++trial) {
        Problem p = curled(trial % 2 ? Solid : Liquid);
        p.layers[0].T = 6 + 8 * random();
        p.TEMP = 60 * (random() - 0.5);
        const double largest = std::pow(10, -2 + 2.5 * random()), part = random();
        for (int n = 1; n <= 90; ++n)
            if (random() < part) p.NG.push_back({n, largest * random()});
        if (random() < 0.5) p.groups = {{{1, 80 * random(), 180, 0, 20 + 100 * random(), 20 * random()}}};
        const Solution s = solved(p);
        ASSERT_FALSE(s.fault);
        const ContactReport& report = s.cases[0].contact;
        expectConsistent(s.cases[0]);
        EXPECT_EQ(report.afterCheck, report.byRule + report.returned - report.released);
        corrected += report.returned > 0;
    }
    EXPECT_GT(corrected, 5);
}

// Nodes given as out of contact: for good without cycles, only at first with them.
TEST(PlateContact, NodesApart) {
    Problem p = oneSlab(lines(120, 6), lines(96, 4));
    p.NWT = true;
    p.NODNC = {1, 2, 6};
    const Solution apart = solved(p);
    for (int n : p.NODNC) EXPECT_EQ(at(apart, n).reaction, 0);
    EXPECT_GT(at(apart, 1).w, 0.868 / 100);
    p.NCYCLE = 10;
    const Solution back = solved(p);
    EXPECT_EQ(back.cases[0].contact.returned, 3);
    EXPECT_NEAR(at(back, 1).w, 0.868 / 100, 1e-9);
}

// Weight, curling and a wheel first, then sets that continue with other wheels: together they add to one
// run with all loads, in which the play of the dowels is used up once, too.
TEST(PlateContact, ContinuesFromTheSetBefore) {
    const std::vector<LoadedArea> wheels{
        {1, 150, 180, 0, 30, 40}, {2, 0, 20, 0, 60, 60}, {2, 0, 20, 100, 140, 30}};
    for (FoundationKind kind : {Liquid, Solid}) {
        Problem p = curled(kind);
        addNeighbour(p, {0, 0, 1.5e6, 1, 12, 0.2, 0.003, {}});
        p.NG = {{nodeAt(p, 4, 4), 0.01}, {nodeAt(p, 4, 5), 0.01}};
        p.groups = {wheels};
        const Case whole = solved(p).cases[0];
        std::vector<Case> parts;
        for (const LoadedArea& wheel : wheels) {
            p.groups = {{wheel}};
            parts.push_back(solved(p).cases[0]);
            p.NWT = false;
            p.TEMP = 0;
            p.NG.clear();
            p.previous = {parts.back().state};
        }
        const auto expectSum = [&](auto value, double tolerance) {
            double sum = 0;
            for (const Case& part : parts) sum += value(part);
            EXPECT_NEAR(sum, value(whole), tolerance);
        };
        for (std::size_t n = 0; n < 180; ++n) {
            expectSum([&](const Case& c) { return c.nodes[n].w; }, 1e-9);
            expectSum([&](const Case& c) { return c.nodes[n].reaction; }, 1e-5);
            expectSum([&](const Case& c) { return c.nodes[n].layers[0].sx; }, 1e-4);
        }
        for (std::size_t j = 0; j < 9; ++j) expectSum([&](const Case& c) { return c.joints[j].shear; }, 1e-5);
        EXPECT_NEAR(parts[1].equilibrium.load, 72000, 1e-6);
        EXPECT_GT(parts[0].joints[0].shear, 100);
        EXPECT_LT(whole.joints[0].shear, -100) << "the second wheel turns the slip of the bars";
    }
}

TEST(PlateContact, RefusesWhatLiftsOff) {
    for (FoundationKind kind : {Liquid, Solid}) {
        Problem p = oneSlab(lines(120, 4), lines(96, 4));
        p.foundation.kind = kind;
        p.NCYCLE = 10;
        p.FF = {{1, -500}};
        const Solution s = solve(p);
        ASSERT_TRUE(s.fault);
        EXPECT_EQ(s.fault->group, 1);
        p.NCYCLE = 1;
        EXPECT_FALSE(solve(p).fault);
    }
}

}  // namespace
}  // namespace plate
