// What the sheets of the slab examples say of their results, against the solver.
#include "solvers/tolplate/run_tolplate.h"
#include "support/sheet_statements.h"

namespace {

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
