#include "solvers/tolstrat/command.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "layered/layered_check.h"
#include "layered/layered_deck.h"
#include "platform/files.h"
#include "platform/list_file.h"
#include "solvers/parallel.h"
#include "solvers/tolstrat/csv.h"
#include "solvers/tolstrat/linear.h"
#include "solvers/tolstrat/plot_file.h"
#include "solvers/tolstrat/report.h"
#include "store/store.h"

namespace {

struct Options {
    std::string path;  ///< of the deck, without ".DAT"
    std::string csv;
    bool quiet = false;
    int threads = 1;
};

/// The deck and what is left beside it. Names that are there already keep their letter case.
struct Files {
    std::string deck, text, plot;

    explicit Files(const std::string& path) {
        deck = resolveName(withDatExtension(path));
        const std::string stem = deck.substr(0, deck.size() - 4);
        text = resolveName(stem + ".TXT");
        plot = resolveName(stem + ".BED");
    }
};

/// A deck that cannot be solved: one sentence for the user.
struct BadDeck : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A wrong count makes the reading fail further down; then the count is what the user must hear of.
bool standsBefore(const DeckPlace& a, const DeckPlace& b) {
    return std::pair(a.set, a.card) < std::pair(b.set, b.card);
}

/// Reads and checks the deck; afterwards every data set in the store can be solved.
void readDeck(const std::string& path, Store& store) {
    const DeckReadResult read = readLayeredDeck(path, store);
    if (read.outcome == DeckReadResult::Outcome::NotADeck) {
        throw BadDeck("this is not a layered deck: " + read.sentence());
    }
    const auto fault = checkLayeredDeck(store);
    if (read.outcome == DeckReadResult::Outcome::Failed) {
        throw BadDeck(fault && standsBefore(fault->where, read.where) ? fault->sentence : read.sentence());
    }
    if (fault) throw BadDeck(fault->sentence);
    for (int n = 1; n <= store.NPROB; ++n) {
        const LayeredSet& set = store.layered[n];
        if (set.MATL != 1) {
            throw BadDeck("MATL, card (3), data set " + std::to_string(n) +
                          ": only linear elastic layers (1) can be solved so far");
        }
        if (set.NDAMA != 0) {
            throw BadDeck("NDAMA, card (3), data set " + std::to_string(n) +
                          ": damage analysis cannot be done so far, so it must be 0");
        }
    }
}

/// All load groups of a data set, in the order of the output: periods outer, load groups inner.
std::vector<GroupResult> solveSet(const LayeredSet& set, int n, const Options& options) {
    const int groups = static_cast<int>(set.NLG), periods = static_cast<int>(set.NPY);
    std::vector<std::vector<GroupResult>> byGroup(static_cast<std::size_t>(groups));
    std::mutex console;
    parallelFor(groups, options.threads, [&](int g) {
        auto& results = byGroup[static_cast<std::size_t>(g)];
        results = solveLinearGroup(set, g + 1);
        if (options.quiet) return;
        const std::lock_guard lock(console);
        for (const GroupResult& result : results) {
            std::cout << "Data set " << n << ", load group " << g + 1 << ", period " << result.period << ": "
                      << result.result.cycles << " cycles" << (result.result.converged ? "" : ", ICL reached")
                      << std::endl;
        }
    });
    std::vector<GroupResult> ordered;
    for (int period = 0; period < periods; ++period) {
        for (auto& results : byGroup) ordered.push_back(std::move(results[static_cast<std::size_t>(period)]));
    }
    return ordered;
}

void solveDeck(const Files& files, const Options& options) {
    Store store;
    readDeck(files.deck, store);

    std::ostringstream text, csv;
    std::vector<BedProblem> problems;
    writeHeading(text, std::filesystem::path(files.deck).filename().string(), store.NPROB);
    writeCsvHead(csv);
    for (int n = 1; n <= store.NPROB; ++n) {
        const LayeredSet& set = store.layered[n];
        writeEcho(text, set, n);
        for (const GroupResult& group : solveSet(set, n, options)) {
            writeResults(text, set, group);
            writeCsvRows(csv, set, n, group);
        }
        writePlotNotes(text, set);
        problems.push_back(bedProblem(set));
    }
    if (!options.csv.empty()) writeFileAtomically(options.csv, csv.str());
    writeFileAtomically(files.text, text.str());
    writeBedFile(files.plot, problems);
    if (!options.quiet) std::cout << "Results: " << files.text << "\nPlot: " << files.plot << std::endl;
}

/// Results of an earlier run must not pass for those of this one.
void removeOldResults(const Files& files) {
    std::error_code ignored;
    std::filesystem::remove(files.plot, ignored);
    std::filesystem::remove(files.text, ignored);
}

int fail(const Files& files, const std::string& sentence) {
    std::cerr << "TOLSTRAT: " << files.deck << ": " << sentence << std::endl;
    std::error_code ignored;
    std::filesystem::remove(files.plot, ignored);
    std::ofstream(files.text, std::ios::binary) << "TOLSTRAT " TOLMARK_VERSION "\r\nDeck: " << files.deck
                                                << "\r\n\r\nNot solved: " << sentence << "\r\n";
    return BAD_DECK;
}

}  // namespace

int runTolstrat(int argc, char** argv) {
    Options options;
    CLI::App app{"Stresses, strains and displacements of layered pavements.", "TOLSTRAT.EXE"};
    app.add_option("deck", options.path, "path of the data file, without \".DAT\"")->required();
    app.add_option("--csv", options.csv, "also write the results as a table to this file");
    app.add_flag("--quiet", options.quiet, "no progress on the standard output");
    app.add_option("--threads", options.threads, "load groups solved at the same time")
        ->check(CLI::Range(1, 64));
    app.set_version_flag("--version", "TOLSTRAT " TOLMARK_VERSION);
    CLI11_PARSE(app, argc, argv);

    const Files files(options.path);
    removeOldResults(files);
    try {
        solveDeck(files, options);
    } catch (const std::exception& fault) {
        return fail(files, fault.what());
    }
    return SOLVED;
}
