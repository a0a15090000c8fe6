// The decks in examples/: as the program itself writes them, solved, plotted, the same road in both units,
// and what their sheets say of the results.
#include "plots/layered_plot.h"
#include "solvers/tolstrat/run_tolstrat.h"
#include "support/sheet_statements.h"

namespace {

std::unique_ptr<Store> readExample(const std::string& name) {
    auto store = std::make_unique<Store>();
    const auto read = readLayeredDeck(TOLMARK_SOURCE_DIR "/examples/" + name, *store);
    EXPECT_EQ(read.outcome, DeckReadResult::Outcome::Complete) << name << ": " << read.sentence();
    return store;
}

class Examples : public testing::TestWithParam<int> {
  protected:
    std::string name(const char* units) const { return "BED" + std::to_string(GetParam()) + units + ".DAT"; }
};

TEST_P(Examples, AreWrittenSolvedAndPlotted) {
    for (const char* units : {"", "SI"}) {
        const TemporaryDirectory folder;
        const auto store = readExample(name(units));
        saveLayeredDeck(*store, folder.path() + "road.DAT");
        EXPECT_EQ(folder.read("road.DAT"), example(name(units))) << name(units);
        const Outcome done = run({folder.path() + "road", "--quiet"});
        ASSERT_EQ(done.status, SOLVED) << done.errors;
        EXPECT_THAT(folder.read("road.TXT"), Not(HasSubstr("were reached"))) << name(units);

        LayeredPlot plot(folder.path() + "road.BED");
        int pages = 0;
        while (plot.next()) ++pages;
        EXPECT_EQ(pages, store->layered[1].NPY * store->layered[1].NLG);
    }
}

TEST_P(Examples, AgreeInBothUnitSystems) {
    const Solved english = solveStore(*readExample(name(""))), si = solveStore(*readExample(name("SI")));
    const double cm = 2.54, kPa = 6.894757;
    expectSame(english.responses, si.responses,
               {{"w", cm}, {"szz", kPa}, {"sxx", kPa}, {"s1", kPa}, {"exx", 1}, {"ezz", 1}, {"e3", 1}});
    expectSame(english.moduli, si.moduli, {{"modulus", kPa}, {"iteration", 1}});
    expectSame(english.damage, si.damage, {{"strain", 1}, {"ratio", 1}});
}

INSTANTIATE_TEST_SUITE_P(All, Examples, testing::Range(1, 7));

Results solveExample(const std::string& deck) {
    const TemporaryDirectory folder;
    folder.write(deck + ".DAT", textPage(deck, "\r\n"));
    const Outcome done = run({folder.path() + deck, "--quiet", "--csv", folder.path() + "out.csv"});
    EXPECT_EQ(done.status, SOLVED) << deck << ": " << done.errors;
    return {folder.read(deck + ".TXT"), csvRows(folder.read("out.csv"))};
}

TEST(Sheets, StateWhatTheSolverFinds) {
    expectTrueSheets({"frmBed", std::regex("(.*z = \\S+) +([a-z]+[0-9]?) +([-.0-9E]+) .*"),
                      std::regex("(Fatigue cracking|Permanent deformation|Design life, years) +([.0-9]+).*"),
                      solveExample},
                     3);
}

}  // namespace
