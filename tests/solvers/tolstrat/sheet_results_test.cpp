// What the sheets of the layered examples say of their results, against the solver.
#include "solvers/tolstrat/run_tolstrat.h"
#include "support/sheet_statements.h"

namespace {

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
