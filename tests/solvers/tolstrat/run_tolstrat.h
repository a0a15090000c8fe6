// TOLSTRAT run on decks of a test: files and tables come back for inspection.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <sstream>

#include "layered/layered_deck.h"
#include "plots/bed_file.h"
#include "solvers/tolstrat/command.h"
#include "store/store.h"
#include "support/temporary_directory.h"

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

inline Outcome run(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "TOLSTRAT.EXE");
    std::vector<char*> argv;
    for (auto& argument : arguments) argv.push_back(argument.data());
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int status = runTolstrat(static_cast<int>(argv.size()), argv.data());
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

inline std::vector<Row> solveToCsv(const TemporaryDirectory& folder, const std::string& deck) {
    folder.write("a road.DAT", deck);
    const Outcome done = run({folder.path() + "a road", "--csv", folder.path() + "out.csv", "--quiet"});
    EXPECT_EQ(done.status, SOLVED) << done.errors;
    return csvRows(folder.read("out.csv"));
}

inline double number(const Row& row, const std::string& column) { return std::stod(row.at(column)); }

struct Solved {
    Outcome outcome;
    std::vector<Row> responses, moduli, damage;
    std::string text;
    std::optional<BedProblem> bed;
};

/// The deck of a store, solved with all tables.
inline Solved solveStore(const Store& store) {
    const TemporaryDirectory folder;
    const std::string path = folder.path();
    saveLayeredDeck(store, path + "road.DAT");
    Solved solved;
    solved.outcome = run({path + "road", "--quiet", "--csv", path + "r.csv", "--csv-moduli", path + "m.csv",
                          "--csv-damage", path + "d.csv"});
    solved.text = folder.read("road.TXT");
    if (solved.outcome.status != SOLVED) return solved;
    solved.responses = csvRows(folder.read("r.csv"));
    solved.moduli = csvRows(folder.read("m.csv"));
    solved.damage = csvRows(folder.read("d.csv"));
    if (std::ifstream(path + "road.BED")) solved.bed = BedReader(path + "road.BED").next();
    return solved;
}

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
