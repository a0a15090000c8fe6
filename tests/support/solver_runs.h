// Solvers run on decks of a test: files and tables come back for inspection.
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

using testing::HasSubstr;
using testing::Not;

inline std::string example(const std::string& name) {
    std::ifstream file(std::string(TOLMARK_SOURCE_DIR "/examples/") + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Replaces the line that ends in `label`; the deck must have it.
inline std::string withCard(std::string deck, const std::string& label, const std::string& values) {
    const std::size_t end = deck.find(label + "\r\n");
    EXPECT_NE(end, std::string::npos) << label;
    const std::size_t start = deck.rfind('\n', end) + 1;
    return deck.replace(start, end - start, values);
}

struct Outcome {
    int status;
    std::string output, errors;
};

/// Calls a solver as its command line, with what it prints.
template <class Solver>
Outcome runSolver(Solver solver, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "SOLVER.EXE");
    std::vector<char*> argv;
    for (auto& argument : arguments) argv.push_back(argument.data());
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int status = solver(static_cast<int>(argv.size()), argv.data());
    return {status, testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()};
}

using Row = std::map<std::string, std::string>;

inline std::vector<Row> csvRows(const std::string& text) {
    const auto split = [](std::string line) {
        std::vector<std::string> cells(1);
        for (char c : line) c == ',' ? cells.emplace_back() : cells.back() += c, void();
        return cells;
    };
    std::istringstream lines(text);
    std::string line;
    std::getline(lines, line);
    const auto heads = split(line);
    std::vector<Row> rows;
    while (std::getline(lines, line)) {
        const auto cells = split(line);
        EXPECT_EQ(cells.size(), heads.size());
        for (std::size_t i = 0; i < heads.size(); ++i) {
            if (i == 0) rows.emplace_back();
            rows.back()[heads[i]] = cells.at(i);
        }
    }
    return rows;
}

inline double number(const Row& row, const std::string& column) { return std::stod(row.at(column)); }

/// The rows of a table in which all the named columns have these values.
inline std::vector<Row> rowsWhere(const std::vector<Row>& rows, const std::map<std::string, double>& values) {
    std::vector<Row> found;
    for (const Row& row : rows) {
        bool all = true;
        for (const auto& [column, value] : values) all = all && number(row, column) == value;
        if (all) found.push_back(row);
    }
    return found;
}

/// Column by column, to 1e-4 of the largest value in the column.
inline void expectSame(const std::vector<Row>& english, const std::vector<Row>& si,
                       const std::map<std::string, double>& factors) {
    ASSERT_EQ(english.size(), si.size());
    for (const auto& [column, factor] : factors) {
        double largest = 0;
        for (const Row& row : si)
            if (std::isfinite(number(row, column)))
                largest = std::max(largest, std::abs(number(row, column)));
        for (std::size_t i = 0; i < si.size(); ++i) {
            if (std::isinf(number(si[i], column))) continue;
            EXPECT_NEAR(number(si[i], column), factor * number(english[i], column), 1e-4 * largest)
                << column << " in row " << i + 1;
        }
    }
}
