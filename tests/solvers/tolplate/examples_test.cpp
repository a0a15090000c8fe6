// The decks in examples/: as the program itself writes them, solved, plotted, the same slabs in both units,
// and what their sheets say of the results.
#include "plots/slab_plot.h"
#include "solvers/tolplate/run_tolplate.h"
#include "support/sheet_statements.h"

namespace {

class SlabExamples : public testing::TestWithParam<int> {
  protected:
    std::string name(const char* units) const { return "PAN" + std::to_string(GetParam()) + units + ".DAT"; }
};

TEST_P(SlabExamples, AreWrittenSolvedAndPlotted) {
    for (const char* units : {"", "SI"}) {
        const TemporaryDirectory folder;
        const auto store = readExample(name(units));
        saveSlabDeck(*store, folder.path() + "slab.DAT");
        EXPECT_EQ(folder.read("slab.DAT"), example(name(units))) << name(units);
        const Outcome done = run({folder.path() + "slab", "--quiet"});
        ASSERT_EQ(done.status, SOLVED) << done.errors;
        EXPECT_THAT(folder.read("slab.TXT"), Not(HasSubstr("***"))) << name(units);

        SlabPlot plot(folder.path() + "slab.PAN");
        int pages = 0, wanted = 0;
        while (plot.next()) ++pages;
        for (int n = 1; n <= store->SlabNPROB.number(); ++n)
            wanted += store->slab[n].NPY * store->slab[n].NLG;
        EXPECT_EQ(pages, wanted);
    }
}

TEST_P(SlabExamples, AgreeInBothUnitSystems) {
    const SolvedSlabs english = solveSlabs(*readExample(name(""))), si = solveSlabs(*readExample(name("SI")));
    const double cm = 2.54, kPa = 6.894757, kN = 0.004448222;
    expectSame(english.nodes, si.nodes,
               {{"w", cm}, {"rx", 1}, {"reaction", kN}, {"mx", kN}, {"sx", kPa}, {"sxy", kPa}, {"s1", kPa}});
    expectSame(english.joints, si.joints, {{"shear", kN}, {"moment", kN * cm}, {"bars", 1}});
    for (std::size_t i = 0; i < si.nodes.size(); ++i)
        EXPECT_EQ(si.nodes[i].at("contact"), english.nodes[i].at("contact")) << "row " << i + 1;
    ASSERT_EQ(english.plots.size(), si.plots.size());
    for (std::size_t n = 0; n < si.plots.size(); ++n) {
        const PanProblem &a = english.plots[n].problem, &b = si.plots[n].problem;
        EXPECT_NEAR(b.DESLIFE, a.DESLIFE, 1e-3 * a.DESLIFE);
        EXPECT_NEAR(b.SUBMOD, 271.4471 * a.SUBMOD, 1e-4 * b.SUBMOD) << "kN/m^3 for pci";
    }
}

TEST(SlabManual, ShowsADeckThatIsSolvedAsItStands) {
    const std::string page = example("../src/text/pages/manual_slab_file.txt");
    const std::size_t first = page.find(" 1  (1) NPROB\n"), behind = page.find("\n\n", first);
    ASSERT_NE(behind, std::string::npos);
    const TemporaryDirectory folder;
    folder.write("slab.DAT", page.substr(first, behind + 1 - first));
    EXPECT_EQ(run({folder.path() + "slab", "--quiet"}).errors, "");
    EXPECT_EQ(folder.read("slab.TXT").find("***"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(All, SlabExamples, testing::Range(1, 7));

Results solveExample(const std::string& deck) {
    const TemporaryDirectory folder;
    const std::string path = folder.path();
    folder.write(deck + ".DAT", textPage(deck, "\r\n"));
    const Outcome done =
        run({path + deck, "--quiet", "--csv", path + "n.csv", "--csv-joints", path + "j.csv"});
    EXPECT_EQ(done.status, SOLVED) << deck << ": " << done.errors;
    Results results{folder.read(deck + ".TXT"), csvRows(folder.read("n.csv"))};
    for (const Row& joint : csvRows(folder.read("j.csv"))) results.rows.push_back(joint);
    return results;
}

/// "Nodes in contact, set 1    27"
bool expectContact(const std::string& line, const Results& solved) {
    static const std::regex contact("Nodes in contact, set (\\d) +(\\d+)");
    std::smatch found;
    if (!std::regex_match(line, found, contact)) return false;
    const auto touches = [&](const Row& row) {
        const auto yes = row.find("contact");
        return yes != row.end() && yes->second == "yes" && row.at("set") == found[1].str();
    };
    EXPECT_EQ(std::count_if(solved.rows.begin(), solved.rows.end(), touches), std::stoi(found[2])) << line;
    return true;
}

TEST(Sheets, StateWhatTheSolverFinds) {
    expectTrueSheets({"frmPan", std::regex("(.*(?:node|node_a) \\d+) +([a-z]+[0-9]?) +([-.0-9E]+) .*"),
                      std::regex("(Index of each slab layer in a year|Design life, years) +([.0-9]+).*"),
                      solveExample, expectContact},
                     7);
}

}  // namespace
