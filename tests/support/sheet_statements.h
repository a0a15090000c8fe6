// What the sheets of the examples say of their results, line by line against a solver.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <regex>

#include "platform/numbers.h"
#include "support/solver_runs.h"
#include "text/pages.h"
#include "text/sheets.h"

/// What a run leaves beside a deck of the manual. Rows of several tables may stand together.
struct Results {
    std::string text;
    std::vector<Row> rows;
};

/// The sheets of one solver and how they put their results.
struct Statements {
    std::string sheets;   ///< what the names of their forms begin with
    std::regex response;  ///< a line about a row: its place, column and number
    std::regex printed;   ///< a line about the text: its words and number
    std::function<Results(const std::string& deck)> solve;
    std::function<bool(const std::string& line, const Results&)> other =
        {};  ///< checks a line of its own kind
};

/// One unit of the last digit that is printed.
inline double lastDigit(const std::string& number) {
    const std::size_t exponent = number.find('E'), point = number.find('.');
    const std::size_t mantissa = std::min(exponent, number.size());
    const double decimals = point < mantissa ? static_cast<double>(mantissa - point - 1) : 0;
    return std::pow(10, (exponent < number.size() ? std::stod(number.substr(exponent + 1)) : 0) - decimals);
}

/// "period 2, x = 0, y = 4.5, z = 6   exx  -2.130E-4  ...": every place named before the result's column.
inline void expectResponse(const std::string& line, const std::smatch& result, const std::vector<Row>& rows) {
    static const std::regex place("(set|period|group|time|node_a|node|joint|x|y|z) =? ?([-.0-9E]+)");
    const std::string places = result[1], column = result[2], said = result[3];
    int found = 0;
    for (const Row& row : rows) {
        bool here = row.contains(column);
        for (std::sregex_iterator at(places.begin(), places.end(), place), end; at != end; ++at)
            here = here && row.contains((*at)[1]) &&
                   std::abs(number(row, (*at)[1]) - Val((*at)[2].str())) < 1e-4;
        if (!here) continue;
        ++found;
        EXPECT_NEAR(number(row, column), Val(said), 0.6 * lastDigit(said)) << line;
    }
    EXPECT_EQ(found, 1) << line;
}

inline void expectPrinted(const std::string& line, const std::smatch& result, const std::string& text) {
    std::smatch printed;
    ASSERT_TRUE(std::regex_search(text, printed, std::regex(result[1].str() + " +([.0-9e-]+)"))) << line;
    EXPECT_NEAR(std::stod(printed[1]), Val(result[2].str()), 0.6 * lastDigit(result[2])) << line;
}

/// Solves the decks that the sheets name and compares every result that they state, at least `atLeast` a
/// sheet.
inline void expectTrueSheets(const Statements& kind, int atLeast) {
    static const std::regex head("MAIN RESULTS, (\\w+)\\.DAT");
    int sheetsSeen = 0;
    for (const Sheet& sheet : sheets()) {
        if (!sheet.form.starts_with(kind.sheets)) continue;
        ++sheetsSeen;
        std::istringstream lines(textPage(sheet.page, "\n"));
        Results solved;
        int checked = 0;
        for (std::string line; std::getline(lines, line);) {
            std::smatch found;
            if (std::regex_match(line, found, head)) {
                solved = kind.solve(found[1]);
            } else if (std::regex_match(line, found, kind.response)) {
                expectResponse(line, found, solved.rows);
                ++checked;
            } else if (std::regex_match(line, found, kind.printed)) {
                expectPrinted(line, found, solved.text);
                ++checked;
            } else if (kind.other && kind.other(line, solved)) {
                ++checked;
            }
        }
        EXPECT_GE(checked, atLeast) << sheet.form;
    }
    EXPECT_EQ(sheetsSeen, 6);
}
