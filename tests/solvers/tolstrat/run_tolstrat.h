// TOLSTRAT run on decks of a test: files and tables come back for inspection.
#pragma once

#include <gtest/gtest.h>

#include <optional>

#include "layered/layered_deck.h"
#include "plots/bed_file.h"
#include "solvers/tolstrat/command.h"
#include "store/store.h"
#include "support/solver_runs.h"
#include "support/temporary_directory.h"

inline Outcome run(const std::vector<std::string>& arguments) { return runSolver(runTolstrat, arguments); }

inline std::vector<Row> solveToCsv(const TemporaryDirectory& folder, const std::string& deck) {
    folder.write("a road.DAT", deck);
    const Outcome done = run({folder.path() + "a road", "--csv", folder.path() + "out.csv", "--quiet"});
    EXPECT_EQ(done.status, SOLVED) << done.errors;
    return csvRows(folder.read("out.csv"));
}

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
