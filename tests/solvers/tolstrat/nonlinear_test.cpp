// Nonlinear layers: the laws by hand, moduli against other ways to find them, limits that are linear.
#include "solvers/tolstrat/nonlinear.h"

#include "solvers/tolstrat/run_tolstrat.h"
#include "support/layered_roads.h"

namespace {

using Principal = std::array<double, 3>;

TEST(Nonlinear, GranularLawLimitsTheLesserStresses) {
    struct Case {
        double PHI;
        Principal s;
        double modulus;
        ModulusLimit limit = ModulusLimit::None;
    };
    const Case cases[] = {
        {0, {30, 5, -10}, 3500},
        {90, {30, 5, -10}, 3500},
        {30, {30, 5, -10}, 5000},
        {30, {30, 20, 15}, 6500},
        {91, {30, 5, -10}, 2500},
        {3000, {30, 5, -10}, 3000, ModulusLimit::PHI},
        {2000, {30, 5, -10}, 2500},
        {0, {-5, -6, -7}, 10, ModulusLimit::LeastTheta},
        {4000, {30, -20, -30}, 4000, ModulusLimit::LeastTheta},
    };
    for (const Case& c : cases) {
        const auto [modulus, limit] = GranularLaw{100, 1, c.PHI, .1}.modulus(c.s);
        EXPECT_NEAR(modulus, c.modulus, 1e-9 * c.modulus) << "PHI " << c.PHI;
        EXPECT_EQ(limit, c.limit) << "PHI " << c.PHI;
    }
}

TEST(Nonlinear, ClayLawBreaksAndEnds) {
    struct Case {
        double K4, EMIN, EMAX;
        Principal s;
        double modulus;
        ModulusLimit limit = ModulusLimit::None;
    };
    const Case cases[] = {
        {200, 0, 0, {4, 1, 1}, 10000},
        {200, 0, 9000, {4, 1, 1}, 9000, ModulusLimit::EMAX},
        {200, 0, 0, {12, 2, 0}, 6000},
        {200, 6500, 9000, {12, 2, 0}, 6500, ModulusLimit::EMIN},
        {2000, 0, 0, {12, 2, 0}, 70, ModulusLimit::LeastK1},
        {2000, 80, 0, {12, 2, 0}, 80, ModulusLimit::EMIN},
    };
    for (const Case& c : cases) {
        const auto [modulus, limit] = ClayLaw{7000, 6, 1000, c.K4, c.EMIN, c.EMAX}.modulus(c.s);
        EXPECT_NEAR(modulus, c.modulus, 1e-9 * c.modulus);
        EXPECT_EQ(limit, c.limit);
    }
}

/// Modulus of a layer in the last iteration.
double lastModulus(const Solved& solved, int layer, int group = 1) {
    const auto rows = rowsWhere(solved.moduli, {{"layer", layer}, {"group", group}});
    return number(rows.at(rows.size() - 1), "modulus");
}

/// The modulus that the law gives for a row of stresses from the loads.
template <class Law>
double lawAt(const Row& row, double vertical, double K0, const Law& law) {
    const double across = K0 * vertical;
    return law
        .modulus(layered_theory::principalValues({number(row, "sxx") + across, number(row, "syy") + across,
                                                  number(row, "szz") + vertical, number(row, "sxy"),
                                                  number(row, "sxz"), number(row, "syz")}))
        .modulus;
}

TEST(Nonlinear, ModuliAreThoseOfThePrintedStresses) {
    const auto store = nonlinearStore();
    LayeredSet& s = store->layered[1];
    s.DELNOL = 1e-6;
    s.ITENOL = 100;
    s.EMOD[1][2] = 0;  // starts from K1
    const Solved solved = solveStore(*store);
    ASSERT_EQ(solved.outcome.status, SOLVED) << solved.outcome.errors;
    EXPECT_EQ(number(rowsWhere(solved.moduli, {{"layer", 2}, {"iteration", 0}}).at(0), "modulus"), 7680);
    const GranularLaw granular{6000, .5, 0, .1};
    const ClayLaw clay{7680, 6.2, 1110, 178, 1000, 15000};
    const double E1 = lastModulus(solved, 1), E2 = lastModulus(solved, 2);
    EXPECT_NEAR(lawAt(solved.responses.at(0), 135 * 6 / 1728., .6, granular), E1, 1e-5 * E1);
    EXPECT_NEAR(lawAt(solved.responses.at(1), (135 * 12 + 120 * 8) / 1728., .8, clay), E2, 1e-5 * E2);
}

// Under a viscoelastic layer and a moving load the stresses are the superposed ones; kN/m^3 and cm.
TEST(Nonlinear, ModuliUnderAViscoelasticLayer) {
    Store store;
    readLayeredDeck(TOLMARK_SOURCE_DIR "/examples/BED6SI.DAT", store);
    LayeredSet& s = store.layered[1];
    s.NDAMA = 0, s.NLG = 1, s.NPY = 1, s.NZ = 2, s.DELNOL = 1e-6, s.ITENOL = 100;
    s.ZC[1] = s.NOLLAY[1].ZCNOL, s.ZC[2] = s.NOLLAY[2].ZCNOL;
    s.LOADL[1].NR = 1, s.PT[1][1] = {s.XCNOL, s.YCNOL};
    const Solved solved = solveStore(store);
    ASSERT_EQ(solved.outcome.status, SOLVED) << solved.outcome.errors;
    const GranularLaw granular{s.KPER[1][1][2].number(), .45, 0, .7};
    const double E = lastModulus(solved, 2), top = 12.7, depth = s.ZC[1].number() - top,
                 vertical = (s.LAYER[1].GAM.number() * top + s.LAYER[2].GAM.number() * depth) / 100;
    EXPECT_NEAR(lawAt(solved.responses.at(0), vertical, .6, granular), E, 1e-5 * E);
}

TEST(Nonlinear, LinearLimitsEqualTheLinearRun) {
    const auto store = nonlinearStore();
    LayeredSet& s = store->layered[1];
    s.KGRAN[1].K2 = 0;
    s.KCLAY[2].K3 = s.KCLAY[2].K4 = 0;
    s.RELAX[1] = 1;
    const Solved limit = solveStore(*store);
    ASSERT_EQ(limit.outcome.status, SOLVED) << limit.outcome.errors;
    s.MATL = 1;
    s.EMOD[1][1] = 6000.0, s.EMOD[1][2] = 7680.0;
    const Solved linear = solveStore(*store);
    EXPECT_EQ(limit.responses, linear.responses);
    EXPECT_TRUE(linear.moduli.empty());
}

TEST(Nonlinear, EachPeriodHasItsRelaxation) {
    const auto store = nonlinearStore();
    LayeredSet& s = store->layered[1];
    s.NOLAY = s.ITENOL = 1;
    s.NPY = 2;
    s.EMOD[2] = s.EMOD[1];
    s.KPER[1][2] = s.KPER[1][1];
    s.RELAX[2] = 1;  // half of it in the first
    const Solved solved = solveStore(*store);
    const auto change = [&](int period) {
        const auto rows = rowsWhere(solved.moduli, {{"period", period}, {"layer", 1}});
        return number(rows.at(1), "modulus") - number(rows.at(0), "modulus");
    };
    EXPECT_NEAR(change(2), 2 * change(1), 1e-6 * change(2));
}

TEST(Nonlinear, StressPointOnABoundaryBelongsToItsLayer) {
    const auto modulusAt = [](double z) {
        const auto store = nonlinearStore();
        store->layered[1].NOLLAY[2].ZCNOL = z;
        return lastModulus(solveStore(*store), 2);
    };
    EXPECT_NEAR(modulusAt(11.99999), modulusAt(12.0001), 1e-4 * modulusAt(12));
}

TEST(Nonlinear, StressPointsSpreadWithDepth) {
    const auto modulusAt = [](double RCNOL, double SLD) {
        const auto store = nonlinearStore();
        store->layered[1].NOLAY = 1;
        store->layered[1].RCNOL = RCNOL, store->layered[1].SLD = SLD;
        return lastModulus(solveStore(*store), 1);
    };
    EXPECT_EQ(modulusAt(6, .5), modulusAt(9, 0));
    EXPECT_LT(modulusAt(6, .5), modulusAt(0, 0));
}

TEST(Nonlinear, TellsWhatDidNotConverge) {
    const auto store = nonlinearStore();
    LayeredSet& s = store->layered[1];
    s.ITENOL = 2;
    const Solved solved = solveStore(*store);
    EXPECT_EQ(solved.outcome.status, SOLVED);
    EXPECT_THAT(solved.text, HasSubstr("ITENOL = 2 iterations were reached"));
    EXPECT_EQ(rowsWhere(solved.moduli, {{"layer", 1}}).size(), 3U);
    ASSERT_TRUE(solved.bed);
    EXPECT_EQ(solved.bed->E[1][1], 20000) << "the plot shows the deck's moduli";
    EXPECT_EQ(solved.bed->EMIN[1][2], 1000);

    s.NOLLAY[2].NCLAY = 2;
    s.ITENOL = 50;
    s.KCLAY[2].K4 = 1e5;
    s.KCLAY[2].K2 = .01;
    s.KPER[2][1][1] = 0;
    const Solved soft = solveStore(*store);
    EXPECT_THAT(soft.text, HasSubstr("layer 2: the deviator stress would leave less than 1 % of K1"));
    ASSERT_TRUE(soft.bed);
    EXPECT_EQ(soft.bed->NCLAY[2], 1) << "every clay has the four constants";
    EXPECT_EQ(soft.bed->EMAX[1][2], 15000);
}

}  // namespace
