// Damage: by hand from the printed strains, and axles that must add up.
#include "solvers/tolstrat/run_tolstrat.h"
#include "support/layered_roads.h"

namespace {

double ratioSum(const Solved& solved, int location) {
    double sum = 0;
    for (const Row& row : rowsWhere(solved.damage, {{"location", location}})) sum += number(row, "ratio");
    return sum;
}

/// One or several axles with two points under the first.
std::unique_ptr<Store> axles(int kind, double spacing) {
    auto store = damageStore();
    LayeredSet& s = store->layered[1];
    s.LOADL[1] = {kind, 4.5, 100.0, 0.0, spacing, 2};
    s.PT[1][1] = {0, 0}, s.PT[1][2] = {0, 6};
    return store;
}

TEST(Damage, FollowsByHandFromThePrintedStrains) {
    const auto store = damageStore();
    LayeredSet& s = store->layered[1];
    s.NPY = 2;
    for (int i = 1; i <= 3; ++i) s.EMOD[2][i] = s.EMOD[1][i].number() * .8;
    s.TNLR[2][1] = 25000;
    const Solved solved = solveStore(*store);
    ASSERT_TRUE(solved.bed) << solved.outcome.errors;

    double fatigue = 0, deformation = 0;
    for (int period = 1; period <= 2; ++period) {
        double tension = 0, compression = 0;
        for (const Row& row : rowsWhere(solved.responses, {{"period", period}})) {
            const double xx = number(row, "exx"), yy = number(row, "eyy"), xy = number(row, "exy");
            if (number(row, "z") == 4)
                tension = std::max(tension, std::sqrt(std::pow(xx - yy, 2) / 4 + xy * xy) - (xx + yy) / 2);
            else
                compression = std::max(compression, number(row, "ezz"));
        }
        const double E = period == 1 ? 400000 : 320000, passes = period == 1 ? 10000 : 25000;
        const double Nf = .0796 * std::pow(tension, -3.291) * std::pow(E, -.854);
        const double Nd =
            static_cast<double>(1.365e-9F) * std::pow(compression, -static_cast<double>(4.477F));
        const Row bottom = rowsWhere(solved.damage, {{"period", period}, {"location", 1}}).at(0);
        EXPECT_NEAR(number(bottom, "strain"), tension, 1e-8 * tension);
        EXPECT_NEAR(number(bottom, "allowed"), Nf, 1e-7 * Nf);
        EXPECT_EQ(bottom.at("kind"), "bottom");
        const Row top = rowsWhere(solved.damage, {{"period", period}, {"location", 2}}).at(0);
        EXPECT_NEAR(number(top, "ratio"), passes / Nd, 1e-7 * passes / Nd);
        EXPECT_NEAR(solved.bed->DRATIO[period][1][2], passes / Nd, 1e-6 * passes / Nd);
        EXPECT_EQ(top.at("layer"), "3");
        fatigue += passes / Nf, deformation += passes / Nd;
    }
    EXPECT_NEAR(solved.bed->DRBT, fatigue, 1e-6 * fatigue);
    EXPECT_NEAR(solved.bed->DRTC, deformation, 1e-6 * deformation);
    EXPECT_NEAR(solved.bed->DESLIFE, 1 / std::max(fatigue, deformation), 1e-5);
    EXPECT_EQ(std::tuple(solved.bed->KBT, solved.bed->KTC), std::tuple(1, 1));
    EXPECT_EQ(std::tuple(solved.bed->ZC[2], solved.bed->TNLR[1][2]), std::tuple(12.0001F, 25000));
}

TEST(Damage, LifeStaysWithinWhatThePlotCanShow) {
    for (const auto& [repetitions, life] : {std::pair(0.F, 9999.99F), {1e12F, .01F}}) {
        const auto store = damageStore();
        store->layered[1].TNLR[1][1] = repetitions;
        const Solved solved = solveStore(*store);
        ASSERT_TRUE(solved.bed);
        EXPECT_EQ(solved.bed->DESLIFE, life);
        EXPECT_THAT(solved.text, HasSubstr("*** limited to 0.01 to 9999.99 years ***"));
        EXPECT_EQ(ratioSum(solved, 1) + ratioSum(solved, 2) == 0, repetitions == 0);
    }
}

TEST(Damage, AxlesFarApartAreSinglePasses) {
    const Solved single = solveStore(*axles(1, 0));
    EXPECT_EQ(single.damage.size(), 2U);
    for (const int kind : {2, 3}) {
        const Solved several = solveStore(*axles(kind, 3000));
        ASSERT_EQ(several.damage.size(), 4U);
        for (const int location : {1, 2}) {
            const double expected = kind * ratioSum(single, location);
            EXPECT_NEAR(ratioSum(several, location), expected, 2e-3 * expected) << kind << " axles";
        }
        ASSERT_TRUE(several.bed);
        EXPECT_NEAR(several.bed->DRATIO[1][1][2], ratioSum(several, 2), 1e-6 * ratioSum(several, 2));
    }
}

TEST(Damage, PrimaryStrainIsUnderAnAxleSecondaryWhatItExceedsTheMiddleBy) {
    // The axles stand so close that the top of the third layer is pressed most between them.
    const auto store = axles(2, 16);
    LayeredSet& s = store->layered[1];
    s.LOADL[1].NR = 3;
    s.PT[1][3] = {8, 0};
    const Solved listed = solveStore(*store);
    s.LOADL[1].NR = 2;
    const Solved computed = solveStore(*store);
    EXPECT_EQ(listed.damage, computed.damage) << "the middle is found whether listed or not";

    const auto vertical = [&](double x, double y) {
        return number(rowsWhere(listed.responses, {{"x", x}, {"y", y}}).back(), "ezz");
    };
    ASSERT_GT(vertical(8, 0), vertical(0, 0));
    EXPECT_EQ(number(listed.damage.at(2), "strain"), vertical(0, 0));
    EXPECT_NEAR(number(listed.damage.at(3), "strain"), vertical(0, 0) - vertical(8, 0), 1e-12);
    EXPECT_EQ(listed.damage.at(3).at("allowed"), "inf");
    EXPECT_EQ(number(listed.damage.at(3), "ratio"), 0);

    s.LOADL[1].NR = 1;
    s.PT[1][1] = {8, 0};
    const Solved onlyMiddle = solveStore(*store);
    EXPECT_EQ(number(onlyMiddle.damage.at(2), "strain"), vertical(8, 0)) << "there is no other point";
}

TEST(Damage, OfAStationaryLoadIsThatAtTheLastTime) {
    const auto store = viscousHalfSpace(0, {.1, 1, 10}, {});
    LayeredSet& s = store->layered[1];
    s.NDAMA = 2;
    s.NLBT = 1, s.NLTC = 0;
    s.DAMBT[1] = {1, .0796, 3.291, .854};
    s.TNLR[1][1] = 100;
    const Solved solved = solveStore(*store);
    ASSERT_EQ(solved.damage.size(), 1U) << solved.outcome.errors;
    EXPECT_EQ(number(solved.damage[0], "time"), 10);
    const Row response = rowsWhere(solved.responses, {{"time", 10}}).at(0);
    EXPECT_NEAR(number(solved.damage[0], "strain"), -number(response, "exx"), 1e-12);
    const double E = 1 / ExponentialCreep().at(10), e = -number(response, "exx");
    EXPECT_NEAR(number(solved.damage[0], "allowed") / (.0796 * std::pow(e, -3.291) * std::pow(E, -.854)), 1,
                1e-5);
    EXPECT_THAT(solved.text, HasSubstr("Damaging strains")) << "the detailed printout";
}

TEST(Damage, MoreLocationsThanAPlotHoldsAreSolvedWithoutOne) {
    const auto store = damageStore();
    LayeredSet& s = store->layered[1];
    s.NLBT = s.NLTC = 10;
    for (int n = 1; n <= 10; ++n) s.DAMBT[n] = s.DAMBT[1], s.DAMTC[n] = s.DAMTC[1];
    const Solved solved = solveStore(*store);
    EXPECT_EQ(solved.outcome.status, SOLVED) << solved.outcome.errors;
    EXPECT_FALSE(solved.bed);
    EXPECT_EQ(solved.damage.size(), 20U);
    EXPECT_THAT(solved.text, HasSubstr("more than 19 locations"));
}

}  // namespace
