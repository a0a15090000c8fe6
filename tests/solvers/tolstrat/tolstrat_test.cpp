// TOLSTRAT as its users meet it: a deck goes in, files and an exit status come out.
#include <algorithm>
#include <set>

#include "solvers/layered_theory/reference.h"
#include "solvers/tolstrat/run_tolstrat.h"
#include "support/layered_stores.h"
#include "support/text_change.h"

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
    const double q = 100, nu = .3;
    for (const Row& row : rows) {
        const double E = 10000 * number(row, "period"), z = number(row, "z");
        const auto right = reference::onAxis(E, nu, 6, q, z);
        EXPECT_NEAR(number(row, "szz"), right.szz, 1e-6 * q) << "z = " << z;
        EXPECT_NEAR(number(row, "sxx"), right.srr, 1e-6 * q) << "z = " << z;
        EXPECT_NEAR(number(row, "w"), right.w, 1e-6 * right.w) << "z = " << z;
        EXPECT_NEAR(number(row, "ezz"), (right.szz - 2 * nu * right.srr) / E, 1e-6 * q / E) << "z = " << z;
    }
}

TEST(Tolstrat, LeavesOutWhatNstdDoesNotAskFor) {
    for (const auto& [nstd, stress, strain] :
         {std::tuple("1", true, true), {"5", false, true}, {"9", false, false}}) {
        const TemporaryDirectory folder;
        const auto rows =
            solveToCsv(folder, replaced(HALF_SPACE_IN_LAYERS, "80  9", std::string("80  ") + nstd));
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

TEST(Tolstrat, PutsWheelsWhereThePlotDrawsThem) {
    // A wheel far from the point adds nothing to what stands above it; the four of a tandem axle stand at
    // x = 0 and XW, y = 0 and YW.
    const TemporaryDirectory folder;
    const std::string deck = example("BED1.DAT");
    const struct {
        const char *load, *spacings, *points;
        int count;
        std::vector<double> pressed;  // pressure over the contact pressure at each point
    } cases[] = {
        {" 1  ", " 0   20  ", " 0   0   0   20   40   0 ", 3, {1, 1, 0}},
        {" 2  ", " 40   20  ", " 0   0   0   20   40   0   40   20   80   0 ", 5, {1, 1, 1, 1, 0}},
        {" 3  ", " 40   20  ", " 80   20   80   0   40   0   120   0 ", 4, {1, 1, 1, 0}},
        {" 2  ", " 40   0  ", " 0   0   40   0   0   20 ", 3, {1, 1, 0}},
    };
    for (const auto& [load, spacings, points, count, pressed] : cases) {
        std::string changed = withCard(deck, " (13) LOAD", load);
        changed = withCard(changed, " (19) NPT", " " + std::to_string(count) + "   ");
        changed = withCard(changed, " (20) XW YW XPT", std::string(spacings) + points);
        const auto rows = solveToCsv(folder, changed);
        for (std::size_t i = 0; i < pressed.size(); ++i)
            EXPECT_NEAR(number(rows.at(4 * i), "szz"), 80 * pressed[i], 1e-4) << load << points << i;
    }
}

TEST(Tolstrat, LetsTheInterfacesSlipThatShould) {
    const auto store = threeLayerStore();
    LayeredSet& s = store->layered[1];
    s.NBOND = 0;
    s.INTF[1] = 1, s.INTF[2] = 0;
    s.ZC[1] = 4.0, s.ZC[2] = 12.0;
    s.RC[1][1] = 6.0;
    const Solved solved = solveStore(*store);
    ASSERT_EQ(solved.responses.size(), 2U) << solved.outcome.errors;
    EXPECT_GT(number(solved.responses[0], "sxz"), 1);
    EXPECT_NEAR(number(solved.responses[1], "sxz"), 0, 1e-6);
}

TEST(Tolstrat, WritesThePlotFileOfTheDeck) {
    const TemporaryDirectory folder;
    folder.write("road.dat", example("BED1.DAT"));
    ASSERT_EQ(run({folder.path() + "road"}).status, SOLVED);
    BedReader reader(folder.path() + "road.BED");
    const auto bed = reader.next();
    ASSERT_TRUE(bed);
    EXPECT_EQ(bed->TITLE, "Linear elastic three-layer system under dual-tandem tires");
    EXPECT_EQ(std::tuple(bed->NL, bed->TH[2], bed->E[1][1], bed->ZC[4]), std::tuple(3, 8.F, 400000, 14.001F));
    EXPECT_EQ(std::tuple(bed->LOAD[1], bed->XW[1], bed->YPT[1][3]), std::tuple(2, 54.F, 6.75F));
    EXPECT_FALSE(reader.next());
}

TEST(Tolstrat, MarksWhereTheCyclesEnded) {
    const TemporaryDirectory folder;
    folder.write("road.DAT", withCard(example("BED1.DAT"), " (5) NL NZ ICL NSTD NUNIT", " 3  4  1  9  0 "));
    ASSERT_EQ(run({folder.path() + "road"}).status, SOLVED);
    EXPECT_THAT(folder.read("road.TXT"), HasSubstr("*** ICL = 1 cycles were reached"));
}

TEST(Tolstrat, ComesOutTheSameOnAnyNumberOfThreads) {
    for (const char* deck : {"BED4.DAT", "BED5.DAT", "BED6.DAT"}) {  // periods, load groups, both
        const TemporaryDirectory folder;
        const std::string path = folder.path();
        folder.write("road.DAT", example(deck));
        std::set<std::string> outputs;
        for (const char* threads : {"1", "2", "7"}) {
            ASSERT_EQ(run({path + "road", "--quiet", "--threads", threads, "--csv", path + "r.csv",
                           "--csv-moduli", path + "m.csv"})
                          .status,
                      SOLVED);
            const std::string rows = folder.read("r.csv");
            EXPECT_TRUE(
                std::ranges::is_sorted(csvRows(rows), {}, [](const Row& r) { return r.at("period"); }));
            outputs.insert(folder.read("road.TXT") + folder.read("road.BED") + rows + folder.read("m.csv"));
        }
        EXPECT_EQ(outputs.size(), 1U);
    }
}

/// What the run says of a bad deck, in one line and in the .TXT; the plot of an older deck must go.
std::string refusal(const std::string& deck) {
    const TemporaryDirectory folder;
    folder.write("road.DAT", deck);
    folder.write("road.BED", "an older plot");
    const Outcome done = run({folder.path() + "road"});
    EXPECT_EQ(done.status, BAD_DECK);
    EXPECT_EQ(std::ranges::count(done.errors, '\n'), 1) << done.errors;
    EXPECT_FALSE(std::filesystem::exists(folder.path() + "road.BED")) << done.errors;
    const std::string sentence = done.errors.substr(0, done.errors.find('\n'));
    EXPECT_THAT(folder.read("road.TXT"), HasSubstr(sentence.substr(sentence.find(".DAT: ") + 6)));
    return sentence;
}

TEST(Tolstrat, RefusesBadDecksInOneSentence) {
    const struct {
        const char *label, *values, *expected;
    } cases[] = {
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
    for (const auto& [label, values, expected] : cases)
        EXPECT_THAT(refusal(withCard(example("BED1.DAT"), label, values)), HasSubstr(expected));
}

TEST(Tolstrat, JudgesOnlyWhatWasRead) {
    // Behind the place where reading stopped all fields are 0, and so are the lists that allow an E of 0.
    EXPECT_THAT(refusal(withCard(example("BED5.DAT"), " (17) RC", " 0   5.S ")),
                HasSubstr("RC(1, 2), card (17), data set 1: \"5.S\" is no number"));
    EXPECT_THAT(refusal(withCard(example("BED6.DAT"), " (36) DUR", " .O1 ")),
                HasSubstr("DUR, card (36), data set 1: \".O1\" is no number"));
}

TEST(Tolstrat, RefusesWhatIsNoDeck) {
    const std::string whole = example("BED1.DAT");
    for (const std::string& text :
         {std::string(), std::string("a letter\r\nto a friend\r\n"), whole.substr(0, whole.size() / 2),
          withCard(whole, " (9) NBOND", " 1  (8) SLABS\r\n 1")})
        refusal(text);
    const TemporaryDirectory empty;
    const Outcome missing = run({empty.path() + "nothing here"});
    EXPECT_EQ(missing.status, BAD_DECK);
    EXPECT_THAT(missing.errors, HasSubstr("nothing here"));
}

TEST(Tolstrat, TablesTakeNoOtherPlaceAndDoNotOutliveTheirRun) {
    const TemporaryDirectory folder;
    const std::string road = folder.path() + "road", deck = example("BED1.DAT");
    folder.write("road.DAT", deck);
    ASSERT_EQ(run({road, "--csv", road + ".csv"}).status, SOLVED);
    const std::string results = folder.read("road.TXT");
    for (const char* taken : {"road.DAT", "./road.TXT", "road.BED"})
        EXPECT_THAT(run({road, "--csv", folder.path() + taken}).errors,
                    HasSubstr("another file of this run"));
    EXPECT_EQ(run({road, "--csv", road + ".csv", "--csv-damage", road + ".csv"}).status, BAD_DECK);
    EXPECT_EQ(folder.read("road.DAT"), deck);
    EXPECT_EQ(folder.read("road.TXT"), results);

    folder.write("road.DAT", withCard(deck, " (6) TH", " 0   8 "));
    EXPECT_EQ(run({road, "--csv", road + ".csv"}).status, BAD_DECK);
    EXPECT_EQ(folder.read("road.csv"), "");
}

TEST(Tolstrat, WarnsOfLoadedAreasThatOverlap) {
    const TemporaryDirectory folder;
    for (const auto& [values, warns] : {std::pair(" 6.75   80 ", false), {" 6.8   80 ", true}}) {
        solveToCsv(folder, withCard(example("BED1.DAT"), " (14) CR CP", values));
        EXPECT_EQ(folder.read("a road.TXT").find("loaded areas overlap") != std::string::npos, warns);
    }
}

TEST(Tolstrat, TellsWhatItPassedOver) {
    const TemporaryDirectory folder;
    const std::string deck = withCard(example("BED1.DAT"), " (6) TH", " 6   8   10 ");
    folder.write("road.DAT", deck);
    const std::string remark = "line 6: card (6), data set 1: the values from 10 on were not read";
    EXPECT_THAT(run({folder.path() + "road"}).output, HasSubstr("*** " + remark));
    EXPECT_THAT(folder.read("road.TXT"), HasSubstr("*** " + remark));
    EXPECT_THAT(refusal(withCard(deck, " (11) E", " 400000   0   8000  ")), HasSubstr("look at " + remark));
}

}  // namespace
