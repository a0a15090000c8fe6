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

}  // namespace
}  // namespace plate
