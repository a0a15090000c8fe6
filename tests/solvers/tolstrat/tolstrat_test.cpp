// TOLSTRAT as its users meet it: a deck goes in, files and an exit status come out.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "solvers/tolstrat/run_tolstrat.h"

namespace {

/// A deck of three equal layers under a single wheel, radius 6, pressure 100, with points at r = 0.
const std::string HALF_SPACE_IN_LAYERS =
    " 1  (1) NPROB\r\nthree equal layers\r\n 1  0  2  1  (3) MATL NDAMA NPY NLG\r\n .001  (4) DEL\r\n"
    " 3  4  80  9  0  (5) NL NZ ICL NSTD NUNIT\r\n 2   3   (6) TH\r\n .3   .3   .3   (7) PR\r\n"
    " 0   2   6   30   (8) ZC\r\n 1  (9) NBOND\r\n 10000   10000   10000   (11) E\r\n"
    " 20000   20000   20000   (11) E\r\n 0   (13) LOAD\r\n 6   100   (14) CR CP\r\n 1   (16) NR\r\n"
    " 0   (17) RC\r\n";

TEST(Tolstrat, AgreesWithTheHalfSpaceOnTheAxis) {
    const TemporaryDirectory folder;
    const auto rows = solveToCsv(folder, HALF_SPACE_IN_LAYERS);
    ASSERT_EQ(rows.size(), 8U);
    const double a = 6, q = 100, nu = .3;
    for (const Row& row : rows) {
        // Boussinesq's solution integrated over the circle (Foster and Ahlvin 1954).
        const double E = 10000 * number(row, "period"), z = number(row, "z"), R = std::hypot(a, z);
        const double szz = q * (1 - std::pow(z / R, 3));
        const double srr = q / 2 * (1 + 2 * nu - 2 * (1 + nu) * z / R + std::pow(z / R, 3));
        const double w = (1 + nu) * q * a / E * (a / R + (1 - 2 * nu) / a * (R - z));
        EXPECT_NEAR(number(row, "szz"), szz, 1e-6 * q) << "z = " << z;
        EXPECT_NEAR(number(row, "sxx"), srr, 1e-6 * q) << "z = " << z;
        EXPECT_NEAR(number(row, "w"), w, 1e-6 * w) << "z = " << z;
        EXPECT_NEAR(number(row, "ezz"), (szz - 2 * nu * srr) / E, 1e-6 * q / E) << "z = " << z;
    }
}

TEST(Tolstrat, LeavesOutWhatNstdDoesNotAskFor) {
    const std::string layers = " 3  4  80  ", rest = "  0 ";
    for (const auto& [nstd, stress, strain] :
         {std::tuple("1", true, true), {"5", false, true}, {"9", false, false}}) {
        const TemporaryDirectory folder;
        const auto rows = solveToCsv(
            folder, withCard(HALF_SPACE_IN_LAYERS, " (5) NL NZ ICL NSTD NUNIT", layers + nstd + rest));
        EXPECT_FALSE(rows[1].at("w").empty());
        for (const char* column : {"sxx", "syz", "s1", "s3"})
            EXPECT_EQ(rows[1].at(column).empty(), stress) << nstd;
        for (const char* column : {"exx", "eyz", "e1", "e3"})
            EXPECT_EQ(rows[1].at(column).empty(), strain) << nstd;
        const std::string text = folder.read("a road.TXT");
        EXPECT_EQ(text.find("Stresses") == std::string::npos, stress);
        EXPECT_EQ(text.find("Strains") == std::string::npos, strain);
    }
}

TEST(Tolstrat, GivesTheSameAnswersInBothUnitSystems) {
    const TemporaryDirectory folder;
    const auto english = solveToCsv(folder, example("BED1.DAT"));
    const auto si = solveToCsv(folder, example("BED1SI.DAT"));
    ASSERT_EQ(english.size(), 24U);
    ASSERT_EQ(si.size(), english.size());
    for (std::size_t i = 0; i < si.size(); ++i) {
        EXPECT_NEAR(number(si[i], "w"), 2.54 * number(english[i], "w"), 1e-6 * .08);
        EXPECT_NEAR(number(si[i], "szz"), 6.894757 * number(english[i], "szz"), 1e-6 * 1200);
        EXPECT_NEAR(number(si[i], "exx"), number(english[i], "exx"), 1e-6 * 3e-4);
    }
}

TEST(Tolstrat, PutsWheelsWhereThePlotDrawsThem) {
    // A wheel far from the point adds nothing to what stands above it; the four of a tandem axle stand at
    // x = 0 and XW, y = 0 and YW.
    const TemporaryDirectory folder;
    const std::string deck = example("BED1.DAT");
    struct Case {
        const char *load, *spacings, *points;
        int count;
        std::vector<double> pressed;  ///< pressure over the contact pressure at each point
    };
    const std::vector<Case> cases = {
        {" 1  ", " 0   20  ", " 0   0   0   20   40   0 ", 3, {1, 1, 0}},
        {" 2  ", " 40   20  ", " 0   0   0   20   40   0   40   20   80   0 ", 5, {1, 1, 1, 1, 0}},
        {" 3  ", " 40   20  ", " 80   20   80   0   40   0   120   0 ", 4, {1, 1, 1, 0}},
        {" 2  ", " 40   0  ", " 0   0   40   0   0   20 ", 3, {1, 1, 0}},
    };
    for (const Case& test : cases) {
        std::string changed = withCard(deck, " (13) LOAD", test.load);
        changed = withCard(changed, " (19) NPT", " " + std::to_string(test.count) + "   ");
        changed = withCard(changed, " (20) XW YW XPT", std::string(test.spacings) + test.points);
        const auto rows = solveToCsv(folder, changed);
        for (std::size_t i = 0; i < test.pressed.size(); ++i) {
            EXPECT_NEAR(number(rows.at(4 * i), "szz"), 80 * test.pressed[i], 1e-4)
                << test.load << test.points << i;
        }
    }
}

TEST(Tolstrat, WritesThePlotFileOfTheDeck) {
    const TemporaryDirectory folder;
    folder.write("road.dat", example("BED1.DAT"));
    ASSERT_EQ(run({folder.path() + "road"}).status, SOLVED);
    BedReader reader(folder.path() + "road.BED");
    const auto bed = reader.next();
    ASSERT_TRUE(bed);
    EXPECT_EQ(bed->TITLE, "Linear elastic three-layer system under dual-tandem tires");
    EXPECT_EQ(bed->NL, 3);
    EXPECT_EQ(bed->TH[2], 8.F);
    EXPECT_EQ(bed->E[1][1], 400000);
    EXPECT_EQ(bed->ZC[4], 14.001F);
    EXPECT_EQ(bed->LOAD[1], 2);
    EXPECT_EQ(bed->XW[1], 54.F);
    EXPECT_EQ(bed->YPT[1][3], 6.75F);
    EXPECT_FALSE(reader.next());
}

TEST(Tolstrat, MarksWhereTheCyclesEnded) {
    const TemporaryDirectory folder;
    folder.write("road.DAT", withCard(example("BED1.DAT"), " (5) NL NZ ICL NSTD NUNIT", " 3  4  1  9  0 "));
    ASSERT_EQ(run({folder.path() + "road"}).status, SOLVED);
    EXPECT_NE(folder.read("road.TXT").find("*** ICL = 1 cycles were reached"), std::string::npos);
    folder.write("road.DAT", example("BED1.DAT"));
    ASSERT_EQ(run({folder.path() + "road"}).status, SOLVED);
    EXPECT_EQ(folder.read("road.TXT").find("***"), std::string::npos);
}

TEST(Tolstrat, ComesOutTheSameOnAnyNumberOfThreads) {
    std::string deck = HALF_SPACE_IN_LAYERS;
    const std::string group = deck.substr(deck.find(" 0   (13) LOAD"));
    deck = withCard(deck, " (3) MATL NDAMA NPY NLG", " 1  0  2  5 ");
    for (int i = 0; i < 4; ++i) deck += group;
    for (const std::string& each : {deck, example("BED3.DAT"), example("BED6.DAT")}) {
        const TemporaryDirectory folder;
        const std::string path = folder.path();
        folder.write("road.DAT", each);
        std::vector<std::string> outputs;
        for (const char* threads : {"1", "2", "7"}) {
            ASSERT_EQ(run({path + "road", "--quiet", "--threads", threads, "--csv", path + "r.csv",
                           "--csv-moduli", path + "m.csv"})
                          .status,
                      SOLVED);
            outputs.push_back(folder.read("road.TXT") + folder.read("road.BED") + folder.read("r.csv") +
                              folder.read("m.csv"));
        }
        EXPECT_EQ(outputs[0], outputs[1]);
        EXPECT_EQ(outputs[0], outputs[2]);
    }
}

TEST(Tolstrat, RefusesBadDecksInOneSentence) {
    struct Case {
        const char *label, *values, *expected;
    };
    const Case cases[] = {
        {" (5) NL NZ ICL NSTD NUNIT", " 0  4  80  9  0 ", "NL is 0, card (5), data set 1"},
        {" (5) NL NZ ICL NSTD NUNIT", " 20  4  80  9  0 ", "NL is 20, card (5)"},
        {" (5) NL NZ ICL NSTD NUNIT", " 3  4  80  7  0 ", "NSTD is 7, card (5)"},
        {" (6) TH", "-6   8  ", "TH(1) is -6, card (6)"},
        {" (6) TH", " 6   0  ", "TH(2) is 0, card (6)"},
        {" (7) PR", " .35   .6   .45  ", "PR(2) is .6, card (7)"},
        {" (7) PR", " .35   .3   -1  ", "PR(3) is -1, card (7)"},
        {" (11) E", " 400000   0   8000  ", "E(1, 2) is 0, card (11)"},
        {" (11) E", " 400000   many   8000  ", "card (11)"},
        {" (11) E", " 400000   1e400   8000  ", "card (11)"},
        {" (14) CR CP", " 0   80  ", "CR(1) is 0, card (14)"},
        {" (3) MATL NDAMA NPY NLG", " 2  0  1  1 ", "NOLAY, card (25)"},
    };
    for (const Case& test : cases) {
        const TemporaryDirectory folder;
        folder.write("road.DAT", withCard(example("BED1.DAT"), test.label, test.values));
        folder.write("road.BED", "an older plot");
        const Outcome done = run({folder.path() + "road"});
        EXPECT_EQ(done.status, BAD_DECK) << test.expected;
        EXPECT_NE(done.errors.find(test.expected), std::string::npos) << done.errors;
        EXPECT_EQ(std::count(done.errors.begin(), done.errors.end(), '\n'), 1) << done.errors;
        EXPECT_FALSE(std::filesystem::exists(folder.path() + "road.BED")) << test.expected;
        EXPECT_NE(folder.read("road.TXT").find(test.expected), std::string::npos);
    }
}

TEST(Tolstrat, RefusesWhatIsNoDeck) {
    const TemporaryDirectory folder;
    const std::string whole = example("BED1.DAT");
    for (const std::string& text :
         {std::string(), std::string("a letter\r\nto a friend\r\n"), whole.substr(0, whole.size() / 2),
          withCard(whole, " (9) NBOND", " 1  (8) SLABS\r\n 1")}) {
        folder.write("road.DAT", text);
        folder.write("road.BED", "an older plot");
        const Outcome done = run({folder.path() + "road"});
        EXPECT_EQ(done.status, BAD_DECK);
        EXPECT_EQ(std::count(done.errors.begin(), done.errors.end(), '\n'), 1) << done.errors;
        EXPECT_FALSE(std::filesystem::exists(folder.path() + "road.BED"));
    }
    const Outcome missing = run({folder.path() + "nothing here"});
    EXPECT_EQ(missing.status, BAD_DECK);
    EXPECT_NE(missing.errors.find("nothing here"), std::string::npos);
}

}  // namespace
