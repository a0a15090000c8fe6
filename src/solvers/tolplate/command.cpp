#include "solvers/tolplate/command.h"

#include <iostream>
#include <memory>
#include <sstream>

#include "platform/list_file.h"
#include "slab/slab_check.h"
#include "slab/slab_deck.h"
#include "solvers/plate/plate.h"
#include "solvers/tolplate/csv.h"
#include "solvers/tolplate/echo.h"
#include "solvers/tolplate/plate_problem.h"
#include "solvers/tolplate/plot_file.h"
#include "solvers/tolplate/report.h"
#include "store/store.h"

namespace {

/// Everything that a run leaves, before it is written.
struct Output {
    std::ostringstream text, nodes, joints;
    std::vector<PanRun> plots;
};

/// "NODSX, card (19), data set 1: ..."
BadDeck badDeck(const plate::Fault& fault, int n) {
    DeckPlace where = placeOfSlabField(fault.field, n);
    std::string text = where.text();
    if (fault.slab != 0) text += ", slab " + std::to_string(fault.slab);
    if (fault.node != 0) text += ", node " + std::to_string(fault.node);
    return BadDeck(text + ": " + fault.text);
}

void demandMemory(const plate::Problem& problem, const SlabSolver& solver, int n) {
    const double bytes = plate::bytesNeeded(problem);
    if (bytes <= solver.ceiling) return;
    std::ostringstream text;
    text.precision(0);
    text << std::fixed << "data set " << n << " needs about " << bytes / 1e6 << " MB of memory and "
         << solver.name << " takes at most " << solver.ceiling / 1e6 << " MB; solve the deck with TOLGIANT";
    throw BadDeck(text.str());
}

/// All data sets are looked at before the first is solved.
std::vector<plate::Problem> problems(const Store& store, const SlabSolver& solver) {
    std::vector<plate::Problem> all;
    for (int n = 1; n <= store.SlabNPROB.number(); ++n) {
        all.push_back(plateProblem(store.slab[n]));
        if (const auto fault = plate::check(all.back())) throw badDeck(*fault, n);
        demandMemory(all.back(), solver, n);
    }
    return all;
}

/// What the last load group left in each period.
std::vector<plate::ContactState> statesAfter(const plate::Solution& solution, const SlabSet& set) {
    std::vector<plate::ContactState> states;
    for (const plate::Case& c : solution.cases)
        if (static_cast<int>(c.group) + 1 == set.NLG) states.push_back(c.state);
    return states;
}

void tellWarnings(const std::vector<std::string>& sentences) {
    for (const std::string& warning : sentences) std::cout << "*** " << warning << " ***\n";
}

void tell(const SlabSet& set, int n, const plate::Case& c) {
    std::cout << "Data set " << n << ", period " << c.period + 1 << ", load group " << c.group + 1;
    if (c.contact.checked) std::cout << ": " << c.contact.cycles << " contact cycles";
    std::cout << '\n';
    tellWarnings(warnings(set, c));
    std::cout << std::flush;
}

plate::Solution solveDataSet(const SlabSet& set, int n, const plate::Problem& problem, bool quiet,
                             Output& out) {
    plate::Solution solution = plate::solve(problem);
    if (solution.fault) throw badDeck(*solution.fault, n);
    writeSlabEcho(out.text, set, n);
    writeDataWarnings(out.text, set);
    if (!quiet) tellWarnings(dataWarnings(set));
    for (const plate::Case& c : solution.cases) {
        if (!quiet) tell(set, n, c);
        writeCase(out.text, set, c);
    }
    DamageSum damage;
    if (set.NDAMA != 0) {
        damage = sumDamage(set, solution);
        writeDamage(out.text, set, solution, damage);
    }
    writePlotNotes(out.text, set);
    writeNodeRows(out.nodes, set, n, solution);
    writeJointRows(out.joints, n, solution);
    out.plots.push_back(panRun(set, solution, damage));
    return solution;
}

void solveDeck(const SlabSolver& solver, const ResultFiles& files, const SolverCommand& command) {
    const auto store = std::make_unique<Store>();
    const DeckReadResult read = readSlabDeck(files.deck, *store);
    requireSound(read, checkSlabDeck(*store, read.where), "slabs");
    auto all = problems(*store, solver);

    Output out;
    writeHeading(out.text, solver.name, files.deckName(), static_cast<int>(all.size()));
    command.tell(read.remarks, out.text);
    writeNodeHead(out.nodes);
    writeJointHead(out.joints);
    std::vector<plate::ContactState> before;
    for (int n = 1; n <= static_cast<int>(all.size()); ++n) {
        const SlabSet& set = store->slab[n];
        plate::Problem& problem = all[static_cast<std::size_t>(n - 1)];
        if (set.INPUT.number() == 1) problem.previous = std::move(before);
        before = statesAfter(solveDataSet(set, n, problem, command.quiet(), out), set);
    }

    command.writeTable("--csv", out.nodes.str());
    command.writeTable("--csv-joints", out.joints.str());
    writeFileAtomically(files.text, out.text.str());
    writePanFile(files.plot, out.plots);
    command.announce(files, true);
}

}  // namespace

int runTolplate(const SlabSolver& solver, int argc, char** argv) {
    SolverCommand command(
        {solver.name, "Deflections and stresses of concrete slabs on a foundation.", ".PAN"});
    command.addTable("--csv-joints", "the joint forces");
    return command.run(argc, argv, [&](const ResultFiles& files) { solveDeck(solver, files, command); });
}
