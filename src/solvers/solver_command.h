// What the command lines of all solvers share: a deck goes in by its path, result
// files stand beside it, and a fault is one sentence and no plot file.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "store/cards.h"

enum ExitStatus : int { SOLVED = 0, BAD_DECK = 1 };

struct SolverProgram {
    const char* name;           ///< "TOLSTRAT"; the executable is the same with ".EXE"
    const char* purpose;        ///< a sentence for --help
    const char* plotExtension;  ///< ".BED"
};

/// The deck and what is left beside it. Names that are there already keep their letter case.
struct ResultFiles {
    std::string deck, text, plot;

    ResultFiles(const std::string& path, const char* plotExtension);
    /// Of the deck, without its folder.
    std::string deckName() const;
};

/// A deck that cannot be solved: one sentence for the user.
struct BadDeck : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Throws BadDeck unless the deck was read whole and its check found no fault. A wrong count makes the
/// reading fail further down; then the count is what the user hears of. `kind` is what the solver is for,
/// "slabs".
void requireSound(const DeckReadResult& read, const std::optional<DeckFault>& fault, const std::string& kind);

class SolverCommand {
  public:
    /// With the options of all solvers: the deck, --csv, --quiet, --version.
    explicit SolverCommand(const SolverProgram& program);

    /// For the options of one solver.
    CLI::App& options() { return app_; }
    /// An option that names a file for one more table of results, which is filled through writeTable().
    void addTable(const std::string& option, const std::string& description);
    /// To the file that the user named for it, if any.
    void writeTable(const std::string& option, const std::string& text) const;
    bool quiet() const { return quiet_; }

    /// Parses, removes the results of an earlier run, which must not pass for those of this one, and solves.
    /// What `solveDeck` throws goes to the error stream and into the .TXT, no plot file stays, and the status
    /// is BAD_DECK.
    int run(int argc, char** argv, const std::function<void(const ResultFiles&)>& solveDeck);

    /// What there is to say of the reading of a deck, into the text and, unless quiet, onto the console.
    void tell(const std::vector<std::string>& remarks, std::ostream& text) const;
    /// Tells where the results are, unless quiet. `plotted`: there is a plot file.
    void announce(const ResultFiles& files, bool plotted) const;

  private:
    int fail(const ResultFiles& files, const std::string& sentence) const;
    /// A sentence when a table would take the place of the deck or of another result, else empty.
    std::string clashOfNames(const ResultFiles& files) const;
    void removeResults(const ResultFiles& files) const;

    SolverProgram program_;
    CLI::App app_;
    std::string path_;
    std::map<std::string, std::string> tables_;  ///< the path by the option
    bool quiet_ = false;
};
