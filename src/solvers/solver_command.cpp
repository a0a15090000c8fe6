#include "solvers/solver_command.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>

#include "platform/files.h"
#include "platform/run_time_error.h"
#include "store/store.h"

ResultFiles::ResultFiles(const std::string& path, const char* plotExtension) {
    deck = resolveName(withDatExtension(path));
    const std::string stem = deck.substr(0, deck.size() - 4);
    text = resolveName(stem + ".TXT");
    plot = resolveName(stem + plotExtension);
}

std::string ResultFiles::deckName() const { return std::filesystem::path(deck).filename().string(); }

namespace {

bool standsBefore(const DeckPlace& a, const DeckPlace& b) {
    return std::pair(a.set, a.card) < std::pair(b.set, b.card);
}

}  // namespace

void requireSound(const DeckReadResult& read, const std::optional<DeckFault>& fault,
                  const std::string& kind) {
    using enum DeckReadResult::Outcome;
    if (read.outcome == Complete && !fault) return;
    std::string sentence;
    const auto add = [&](const std::string& part) { sentence += (sentence.empty() ? "" : "; ") + part; };
    if (read.outcome == NotADeck) add("this is no data file of " + kind + ": " + read.sentence());
    if (fault && (read.outcome == Complete || standsBefore(fault->where, read.where)))
        add(fault->sentence);
    else if (read.outcome == Failed)
        add(read.sentence());
    if (!read.remarks.empty()) add("look at " + read.remarks.front());
    throw BadDeck(sentence);
}

SolverCommand::SolverCommand(const SolverProgram& program)
    : program_(program), app_(program.purpose, std::string(program.name) + ".EXE") {
    app_.add_option("deck", path_, "path of the data file, without \".DAT\"")->required();
    addTable("--csv", "the results");
    app_.add_flag("--quiet", quiet_, "no progress on the standard output");
    app_.set_version_flag("--version", std::string(program.name) + " " TOLMARK_VERSION);
}

void SolverCommand::addTable(const std::string& option, const std::string& description) {
    app_.add_option(option, tables_[option], "also write " + description + " as a table to this file");
}

void SolverCommand::writeTable(const std::string& option, const std::string& text) const {
    if (const std::string& path = tables_.at(option); !path.empty()) writeFileAtomically(path, text);
}

std::string SolverCommand::clashOfNames(const ResultFiles& files) const {
    namespace fs = std::filesystem;
    std::set<fs::path> taken;
    for (const std::string& path : {files.deck, files.text, files.plot})
        taken.insert(fs::weakly_canonical(path));
    for (const auto& [option, path] : tables_)
        if (!path.empty() && !taken.insert(fs::weakly_canonical(path)).second)
            return option + " names " + path + ", which is another file of this run";
    return {};
}

void SolverCommand::removeResults(const ResultFiles& files) const {
    std::error_code ignored;
    std::filesystem::remove(files.plot, ignored);
    std::filesystem::remove(files.text, ignored);
    for (const auto& [option, path] : tables_)
        if (!path.empty()) std::filesystem::remove(path, ignored);
}

int SolverCommand::run(int argc, char** argv, const std::function<void(const ResultFiles&)>& solveDeck) {
    CLI11_PARSE(app_, argc, argv);
    const ResultFiles files(path_, program_.plotExtension);
    if (const std::string clash = clashOfNames(files); !clash.empty()) {
        std::cerr << program_.name << ": " << clash << std::endl;
        return BAD_DECK;
    }
    removeResults(files);
    try {
        solveDeck(files);
    } catch (const RunTimeError& fault) {
        const bool overflow = fault.fault() == Fault::Overflow;
        return fail(files,
                    std::string(fault.what()) +
                        (overflow ? ": the values of this deck lead to numbers beyond all range" : ""));
    } catch (const std::exception& fault) {
        return fail(files, fault.what());
    }
    return SOLVED;
}

void SolverCommand::tell(const std::vector<std::string>& remarks, std::ostream& text) const {
    for (const std::string& remark : remarks) {
        text << "*** " << remark << " ***\r\n";
        if (!quiet_) std::cout << "*** " << remark << " ***" << std::endl;
    }
}

void SolverCommand::announce(const ResultFiles& files, bool plotted) const {
    if (quiet_) return;
    std::cout << "Results: " << files.text << '\n';
    if (plotted) std::cout << "Plot: " << files.plot << '\n';
    std::cout << std::flush;
}

int SolverCommand::fail(const ResultFiles& files, const std::string& sentence) const {
    std::cerr << program_.name << ": " << files.deck << ": " << sentence << std::endl;
    removeResults(files);
    std::ofstream(files.text, std::ios::binary)
        << program_.name << " " TOLMARK_VERSION "\r\nData file: " << files.deck
        << "\r\n\r\nNot solved: " << sentence << "\r\n";
    return BAD_DECK;
}
