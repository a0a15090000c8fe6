// Creep: the series and its superposition by brute force, viscoelastic half-spaces by closed form.
#include "solvers/tolstrat/creep.h"

#include "solvers/tolstrat/run_tolstrat.h"
#include "support/layered_roads.h"

namespace {

double superposed(const std::vector<double>& times, double duration, const std::function<double(double)>& f) {
    const auto weights = Collocation(times).peakWeights(duration);
    double sum = 0;
    for (std::size_t i = 0; i < times.size(); ++i) sum += weights[i] * f(times[i]);
    return sum;
}

TEST(Creep, PeakOfAPulseAgreesWithBruteForce) {
    for (const double duration : {.01, .1, 1.}) {
        // A pulse among the first times sees the beginning of the power law, which the series has to guess.
        const double tolerance = duration > .01 ? 3e-4 : 1e-3;
        for (const double exponent : {.2, .4, .6}) {
            const auto power = [&](double t) { return .2 + std::pow(t, exponent); };
            const double expected = atPeak(duration, power);
            EXPECT_NEAR(superposed(HALF_DECADES, duration, power), expected, tolerance * expected)
                << duration << " sec, exponent " << exponent;
        }
        // A term of the series is followed exactly.
        const auto exponential = [](double t) { return 2 - std::exp(-t / std::sqrt(.3 * .1)); };
        EXPECT_NEAR(superposed(HALF_DECADES, duration, exponential), atPeak(duration, exponential), 1e-8);
    }
    EXPECT_EQ(superposed({.1}, .1, [](double) { return 3; }), 3) << "a single time has no creep";
}

TEST(Creep, FitsWhatIsGivenAndSaysHowWell) {
    const Collocation collocation(HALF_DECADES);
    std::vector<double> power, straight;
    for (const double t : HALF_DECADES) power.push_back(1e-6 * std::pow(t, .4)), straight.push_back(2e-6);
    const DirichletSeries series = collocation.fit(power);
    for (std::size_t i = 0; i < power.size(); ++i)
        EXPECT_NEAR(series.at(HALF_DECADES[i]), power[i], 1e-10 * power[i]);
    double worst = 0;
    for (double t = .001; t <= 100; t *= 1.01)
        worst = std::max(worst, std::abs(series.at(t) / (1e-6 * std::pow(t, .4)) - 1));
    EXPECT_NEAR(collocation.largestError(power), worst, .02 * worst);
    EXPECT_LT(collocation.largestError(straight), 1e-9);

    EXPECT_TRUE(collocation.determined());
    const std::vector<double> close = {.01, .1, .1000001, 1};
    const Collocation undetermined(close);
    EXPECT_FALSE(undetermined.determined());
    EXPECT_NEAR(undetermined.fit(std::vector{1e-6, 3e-6, 3e-6, 5e-6}).at(.1), 3e-6, 1e-9);
}

TEST(Creep, StationaryHalfSpaceFollowsTheCompliance) {
    // The retardation time is one of the series, which then is the creep itself.
    const ExponentialCreep creep{.tau = std::sqrt(.3)};
    const auto store = viscousHalfSpace(0, HALF_DECADES, creep);
    store->layered[1].NPY = 2;
    store->layered[1].TEMP[2][1] = store->layered[1].TEMP[2][2] = 80.0;  // BETA .1: ten times as fast
    const Solved solved = solveStore(*store);
    ASSERT_EQ(solved.outcome.status, SOLVED) << solved.outcome.errors;
    ASSERT_EQ(solved.responses.size(), 22U);
    for (const Row& row : solved.responses) {
        const double t = number(row, "time") * (number(row, "period") == 2 ? 10 : 1);
        EXPECT_NEAR(number(row, "w"), centreDeflection(creep.at(t)), 1e-5 * number(row, "w")) << t;
    }
    EXPECT_THAT(solved.text, HasSubstr("count as 0.01 to 1000 sec, which leaves the times given"));
    EXPECT_THAT(solved.text, Not(HasSubstr("Period 1: log10")));
    EXPECT_NEAR(
        number(rowsWhere(solved.moduli, {{"period", 1}, {"time", .1}, {"layer", 2}}).at(0), "modulus"),
        1 / creep.at(.1), 1e-6 / creep.at(.1));
}

TEST(Creep, MovingLoadOnAHalfSpaceAgreesWithTheConvolution) {
    // The last two: a load too quick for any creep, and one so slow that all creep is over.
    const struct {
        double duration, tau, tolerance;
    } cases[] = {{.1, std::sqrt(.3), 1e-5}, {1, .4, 5e-3}, {1e-6, 1, 5e-3}, {1e6, std::sqrt(.3), 1e-5}};
    for (const auto& test : cases) {
        const ExponentialCreep creep{.tau = test.tau};
        const Solved solved = solveStore(*viscousHalfSpace(test.duration, HALF_DECADES, creep));
        ASSERT_EQ(solved.outcome.status, SOLVED) << solved.outcome.errors;
        const double D = atPeak(test.duration, [&](double t) { return creep.at(t); });
        const Row& row = solved.responses.at(0);
        EXPECT_EQ(row.count("time"), 0U);
        EXPECT_NEAR(number(row, "w"), centreDeflection(D), test.tolerance * centreDeflection(D))
            << test.duration << " sec, tau " << test.tau;
        EXPECT_NEAR(number(solved.moduli.at(0), "modulus") * D, 1, test.tolerance);
        EXPECT_NEAR(number(row, "szz"), 50, 1e-4) << "the load itself is at its peak";
    }
}

TEST(Creep, TimesAreToldOfStationaryDataSetsOnly) {
    const auto store = viscousHalfSpace(0, {.1, 1, 10}, {});
    store->NPROB = 2;
    store->layered[2] = threeLayerStore()->layered[1];
    const Solved solved = solveStore(*store);
    ASSERT_EQ(solved.outcome.status, SOLVED) << solved.outcome.errors;
    EXPECT_EQ(rowsWhere(solved.responses, {{"set", 1}}).back().at("time"), "10");
    EXPECT_EQ(rowsWhere(solved.responses, {{"set", 2}}).at(0).at("time"), "");
    EXPECT_TRUE(rowsWhere(solved.moduli, {{"set", 2}}).empty());
}

TEST(Creep, SaysWhatASeriesCannotDo) {
    const auto store = viscousHalfSpace(.1, {.1, 1}, {});
    for (int n = 1; n <= 2; ++n) store->layered[1].CREEP[n][1] = 1e-6F, store->layered[1].CREEP[n][2] = 1e-4F;
    store->layered[1].TEMP[1][2] = -60.0;
    const Solved solved = solveStore(*store);
    EXPECT_EQ(solved.outcome.status, BAD_DECK);
    EXPECT_THAT(solved.outcome.errors,
                HasSubstr("CREEP(1), card (42), data set 1: for TEMP(1, 1) = 70 the series"));

    const Solved close = solveStore(*viscousHalfSpace(.1, {.01, .1, .1000001, 1}, {}));
    EXPECT_EQ(close.outcome.status, SOLVED);
    EXPECT_THAT(close.text, HasSubstr("lie too close together"));

    const auto bumpy = viscousHalfSpace(.1, HALF_DECADES, {});
    EXPECT_THAT(solveStore(*bumpy).text, Not(HasSubstr("results are doubtful")));
    bumpy->layered[1].CREEP[1][4] *= 3;
    EXPECT_THAT(solveStore(*bumpy).text,
                testing::AllOf(HasSubstr("results are doubtful"), HasSubstr("CREEP(1, 5) is smaller")));
}

TEST(Creep, WarnsOfAMovingLoadOnlyWhereItLeavesTheTimes) {
    // BETA is .1 per degree: DUR/4 = .025 sec counts as .001 sec at 56 F, DUR/2 as 100 sec at 103 F.
    for (const auto& [temperature, warns] :
         {std::pair{55.9, true}, {56.1, false}, {70., false}, {102.9, false}, {103.1, true}}) {
        const auto store = viscousHalfSpace(.1, HALF_DECADES, {});
        store->layered[1].TEMP[1][1] = temperature;
        const std::string text = solveStore(*store).text;
        EXPECT_EQ(text.find("in period 1 DUR/4 to DUR/2 count as") != std::string::npos, warns)
            << temperature;
    }
}

}  // namespace
