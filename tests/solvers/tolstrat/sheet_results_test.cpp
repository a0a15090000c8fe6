// What the sheets of the layered examples say of their results, against the solver.
#include <cmath>
#include <regex>

#include "platform/numbers.h"
#include "solvers/tolstrat/run_tolstrat.h"
#include "text/pages.h"
#include "text/sheets.h"

namespace {

/// What a run leaves beside a deck of the manual.
struct Results {
    std::string text;
    std::vector<Row> rows;
};

Results solveExample(const std::string& deck) {
    const TemporaryDirectory folder;
    folder.write(deck + ".DAT", textPage(deck, "\r\n"));
    const Outcome done = run({folder.path() + deck, "--quiet", "--csv", folder.path() + "out.csv"});
    EXPECT_EQ(done.status, SOLVED) << deck << ": " << done.errors;
    return {folder.read(deck + ".TXT"), csvRows(folder.read("out.csv"))};
}

/// One unit of the last digit that is printed.
double lastDigit(const std::string& number) {
    const std::size_t exponent = number.find('E'), point = number.find('.');
    const std::size_t mantissa = std::min(exponent, number.size());
    const double decimals = point < mantissa ? static_cast<double>(mantissa - point - 1) : 0;
    return std::pow(10, (exponent < number.size() ? std::stod(number.substr(exponent + 1)) : 0) - decimals);
}

/// "period 2, x = 0, y = 4.5, z = 6   exx  -2.130E-4  ...": every place named before the result's column.
void expectResponse(const std::string& line, const std::smatch& result, const std::vector<Row>& rows) {
    static const std::regex place("(period|group|time|x|y|z) =? ?([-.0-9E]+)");
    const std::string places = result[1], column = result[2], said = result[3];
    int found = 0;
    for (const Row& row : rows) {
        bool here = true;
        for (std::sregex_iterator at(places.begin(), places.end(), place), end; at != end; ++at)
            here = here && std::abs(number(row, (*at)[1]) - Val((*at)[2].str())) < 1e-4;
        if (!here) continue;
        ++found;
        EXPECT_NEAR(number(row, column), Val(said), 0.6 * lastDigit(said)) << line;
    }
    EXPECT_EQ(found, 1) << line;
}

TEST(Sheets, StateWhatTheSolverFinds) {
    static const std::regex head("MAIN RESULTS, (\\w+)\\.DAT"),
        response("(.*z = \\S+) +([a-z]+[0-9]?) +([-.0-9E]+) .*"),
        printedLine("(Fatigue cracking|Permanent deformation|Design life, years) +([.0-9]+).*");
    for (const Sheet& sheet : sheets()) {
        if (!sheet.form.starts_with("frmBed")) continue;
        std::istringstream lines(textPage(sheet.page, "\n"));
        Results solved;
        int checked = 0;
        for (std::string line; std::getline(lines, line);) {
            std::smatch found;
            if (std::regex_match(line, found, head)) {
                solved = solveExample(found[1]);
            } else if (std::regex_match(line, found, response)) {
                expectResponse(line, found, solved.rows);
                ++checked;
            } else if (std::regex_match(line, found, printedLine)) {
                std::smatch printed;
                ASSERT_TRUE(
                    std::regex_search(solved.text, printed, std::regex(found[1].str() + " +([.0-9e-]+)")))
                    << line;
                EXPECT_NEAR(std::stod(printed[1]), Val(found[2].str()), 0.6 * lastDigit(found[2])) << line;
                ++checked;
            }
        }
        EXPECT_GE(checked, 3) << sheet.form;
    }
}

}  // namespace
