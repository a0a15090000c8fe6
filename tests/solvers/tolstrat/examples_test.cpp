// The decks in examples/: as the program itself writes them, solved, plotted, and the same road in both
// units.
#include "plots/layered_plot.h"
#include "solvers/tolstrat/run_tolstrat.h"

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
        EXPECT_EQ(folder.read("road.TXT").find("were reached"), std::string::npos) << name(units);

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

}  // namespace
