// Joints between slabs.
#include "solved.h"
#include "solvers/plate/dowel.h"

namespace plate {
namespace {

using enum FoundationKind;

Problem stackedSlabs(const Joint& joint) {
    Problem p = twoSlabs(joint);
    p.slabs[0] = p.slabs[1] = {p.slabs[0].Y, p.slabs[0].X, {}};
    p.slabs[0].JONO[3] = 1;
    p.slabs[1].JONO[2] = 1;
    p.groups = {{{1, 0, 20, 40, 60, 80}}};
    return p;
}

// Stiff springs make one slab of two, on a liquid foundation node by node; without springs the
// other slab feels nothing.
TEST(PlateJoints, RigidIsOneSlabFreeIsTwo) {
    Problem whole = oneSlab(lines(120, 10), lines(96, 6));
    whole.groups = {{{1, 40, 60, 0, 20, 80}}};
    const Solution one = solved(whole);
    const Solution two = solved(twoSlabs({1e11, 1e12, 0, 0, 0, 0, 0, {}}));
    for (int i : {0, 3, 5})
        for (int j : {0, 4, 6}) {
            EXPECT_NEAR(at(two, nodeAt(whole, i, j)).w, at(one, nodeAt(whole, i, j)).w, 1e-6 * at(one, 1).w)
                << i << j;
            EXPECT_NEAR(at(two, 42 + nodeAt(whole, i, j)).w, at(one, nodeAt(whole, i + 5, j)).w,
                        1e-6 * at(one, 1).w);
        }
    Problem alone = oneSlab(lines(60, 5), lines(96, 6));
    alone.groups = {{{1, 40, 60, 0, 20, 80}}};
    const Solution left = solved(alone), free = solved(twoSlabs({}));
    for (int n = 1; n <= 42; ++n) {
        EXPECT_NEAR(at(free, n).w, at(left, n).w, 1e-12);
        EXPECT_NEAR(at(free, n + 42).w, 0, 1e-12);
    }
    // On a half-space the ground carries some of it over even without a joint.
    Problem solid = twoSlabs({});
    solid.foundation.kind = Solid;
    EXPECT_GT(at(solved(solid), 43).w, 0.2 * at(solved(solid), 36).w);
}

// What the joint hands over is what the foundation under the other slab carries, in the
// right sense; the same problem turned by a quarter gives the same.
TEST(PlateJoints, ForcesHandedOver) {
    const Joint springs{2000, 50000, 0, 0, 0, 0, 0, {}}, bars{0, 0, 1.5e6, 1, 12, 0.2, 0, {}},
        counted{0, 0, 1.5e6, 1, 0, 0.2, 0, {0, 1, 1.5, 2, 1, 1, 0}},
        loose{0, 0, 1.5e6, 1, 12, 0.2, 0.004, {}};
    for (const Joint& joint : {springs, bars, counted, loose})
        for (FoundationKind kind : {Liquid, Solid}) {
            Problem p = twoSlabs(joint), q = stackedSlabs(joint);
            p.foundation.kind = q.foundation.kind = kind;
            const Solution s = solved(p), t = solved(q);
            double shear = 0, carried = 0;
            for (const JointResult& j : s.cases[0].joints) shear += j.shear;
            for (int n = 43; n <= 84; ++n) carried += at(s, n).reaction;
            EXPECT_NEAR(shear / carried, 1, 1e-9);
            EXPECT_GT(shear, 0.01 * 32000);
            for (std::size_t n = 0; n < 7; ++n) {
                EXPECT_NEAR(t.cases[0].joints[n].shear, s.cases[0].joints[n].shear, 1e-6 * shear);
                EXPECT_NEAR(t.cases[0].joints[n].moment, -s.cases[0].joints[n].moment, 1e-6 * shear);
            }
            // A bar's force is its stiffness times what is left of the slip.
            const JointResult& j = s.cases[0].joints[1];
            if (joint.BD > 0) {
                const double slip = at(s, j.nodeA).w - at(s, j.nodeB).w;
                EXPECT_NEAR(
                    j.shear / (j.bars * dowelStiffness({1.5e6, 1, 0.2, 29e6, 0.3}) * (slip - joint.GDC)), 1,
                    1e-6);
                EXPECT_NEAR(j.bars, joint.BARNO.empty() ? 16. / 12 : 1, 1e-12);
            }
        }
}

// A bar with much play carries nothing; the sense of the slip does not matter.
TEST(PlateJoints, PlayIsTakenUpFirst) {
    Problem p = twoSlabs({0, 0, 1.5e6, 1, 12, 0.2, 10, {}});
    EXPECT_LT(difference(solved(p).cases[0], solved(twoSlabs({})).cases[0]), 1e-12);
    Problem left = twoSlabs({0, 0, 1.5e6, 1, 12, 0.2, 0.004, {}}), right = left;
    right.groups = {{{2, 0, 20, 0, 20, 80}}};
    const Solution a = solved(left), b = solved(right);
    for (std::size_t n = 0; n < 7; ++n)
        EXPECT_NEAR(a.cases[0].joints[n].shear, -b.cases[0].joints[n].shear, 1e-9 * 32000);
}

// Force at A, deflection at B equals force at B, deflection at A: slabs of unequal spans,
// all foundations, through joints in both directions.
TEST(PlateJoints, Reciprocity) {
    for (FoundationKind kind : {Liquid, Solid, Layer}) {
        Problem p = unequalSlabs();
        p.foundation.kind = kind;
        const int A = 3, B = nodeAt(p, 2, 0, 3);
        p.FF = {{A, 1000}};
        const double there = at(solved(p), B).w;
        p.FF = {{B, 1000}};
        EXPECT_NEAR(at(solved(p), A).w / there, 1, 1e-9);
        // The same between a moment and a rotation.
        p.FF.clear();
        p.FMX = {{A, 1000}};
        const double turned = at(solved(p), B).rx;
        p.FMX.clear();
        p.FMY = {{B, 1000}};
        EXPECT_NEAR(at(solved(p), A).ry / turned, 1, 1e-8);
    }
}

}  // namespace
}  // namespace plate
