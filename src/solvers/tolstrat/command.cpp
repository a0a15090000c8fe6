#include "solvers/tolstrat/command.h"

#include <algorithm>
#include <iostream>
#include <sstream>
#include <thread>

#include "layered/layered_check.h"
#include "layered/layered_deck.h"
#include "platform/list_file.h"
#include "solvers/parallel.h"
#include "solvers/tolstrat/csv.h"
#include "solvers/tolstrat/damage_report.h"
#include "solvers/tolstrat/plot_file.h"
#include "solvers/tolstrat/report.h"
#include "store/store.h"

namespace {

struct Options {
    bool quiet = false;
    int threads = std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
};

constexpr SolverProgram TOLSTRAT{"TOLSTRAT", "Stresses, strains and displacements of layered pavements.",
                                 ".BED"};

/// Periods of one load group that are solved together. Elastic periods share much of the work; the iterations
/// of others are where the time goes, so that each is a job of its own.
struct Job {
    int group, first, last;
};

std::vector<Job> jobsOf(const LayeredSet& set) {
    const int groups = static_cast<int>(set.NLG), periods = static_cast<int>(set.NPY);
    std::vector<Job> jobs;
    for (int group = 1; group <= groups; ++group) {
        if (set.MATL == 1) {
            jobs.push_back({group, 1, periods});
            continue;
        }
        for (int period = 1; period <= periods; ++period) jobs.push_back({group, period, period});
    }
    return jobs;
}

std::string progressLine(int n, const GroupResult& r) {
    std::ostringstream text;
    text << "Data set " << n << ", load group " << r.group << ", period " << r.period;
    if (r.time) text << ", time " << *r.time << " sec";
    if (!r.nonlinear.empty())
        text << ": " << r.iterations.count() << " iterations"
             << (r.iterations.converged ? "" : ", ITENOL reached");
    text << ": " << r.result.cycles << " cycles" << (r.result.converged ? "" : ", ICL reached") << '\n';
    return text.str();
}

/// All load groups of a data set, in the order of the output: periods outer, load groups, times inner.
std::vector<GroupResult> solveSet(const LayeredSet& set, int n, const Viscoelasticity& creep,
                                  const Options& options) {
    const auto jobs = jobsOf(set);
    std::vector<std::vector<GroupResult>> byJob(jobs.size());
    std::mutex console;
    parallelFor(static_cast<int>(jobs.size()), options.threads, [&](int j) {
        const Job& job = jobs[static_cast<std::size_t>(j)];
        auto& results = byJob[static_cast<std::size_t>(j)];
        results = solveGroup(set, creep, job.group, job.first, job.last);
        if (options.quiet) return;
        const std::lock_guard lock(console);
        for (const GroupResult& result : results) std::cout << progressLine(n, result) << std::flush;
    });
    std::vector<GroupResult> ordered;
    for (auto& results : byJob) std::ranges::move(results, std::back_inserter(ordered));
    std::ranges::stable_sort(ordered, {}, &GroupResult::period);
    return ordered;
}

/// The damage by all load groups in all periods; of a stationary load that at its last time.
std::vector<GroupDamage> damageOfAll(const LayeredSet& set, const Viscoelasticity& creep,
                                     const std::vector<GroupResult>& results) {
    std::vector<GroupDamage> groups;
    if (set.NDAMA == 0) return groups;
    for (const GroupResult& result : results)
        if (!result.time || *result.time == creep.times.back()) groups.push_back(damageOf(set, result));
    return groups;
}

/// Everything that a run leaves, before it is written.
struct Output {
    explicit Output(bool timed)
        : responses(responseText, timed, RESPONSE_COLUMNS),
          moduli(moduliText, timed, MODULI_COLUMNS),
          damage(damageText, timed, DAMAGE_COLUMNS) {}

    std::ostringstream text, responseText, moduliText, damageText;
    CsvTable responses, moduli, damage;
    std::vector<BedProblem> problems;
};

void solveDataSet(const LayeredSet& set, int n, const Options& options, Output& out) {
    const Viscoelasticity creep = viscoelasticity(set, n);
    writeEcho(out.text, set, n, creep);
    const auto results = solveSet(set, n, creep, options);
    for (const GroupResult& result : results) {
        writeResults(out.text, set, creep, result);
        writeResponseRows(out.responses, set, n, result);
        writeModuliRows(out.moduli, n, creep, result);
    }
    const auto damage = damageOfAll(set, creep, results);
    const DamageSum sum = set.NDAMA > 0 ? sumDamage(set, damage) : DamageSum{};
    if (set.NDAMA > 0) writeDamageSummary(out.text, set, damage, sum);
    for (const GroupDamage& group : damage) writeDamageRows(out.damage, set, n, group);
    writePlotNotes(out.text, set);
    if (fitsPlotFile(set)) out.problems.push_back(bedProblem(set, damage, sum));
}

bool isStationaryViscous(const LayeredSet& set) { return set.MATL >= 3 && set.DUR.number() == 0; }

void solveDeck(const ResultFiles& files, const SolverCommand& command, const Options& options) {
    Store store;
    const DeckReadResult read = readLayeredDeck(files.deck, store);
    requireSound(read, checkLayeredDeck(store, read.where), "layered systems");

    bool timed = false;
    for (int n = 1; n <= store.NPROB; ++n) timed = timed || isStationaryViscous(store.layered[n]);
    Output out(timed);
    writeHeading(out.text, files.deckName(), store.NPROB);
    command.tell(read.remarks, out.text);
    for (int n = 1; n <= store.NPROB; ++n) solveDataSet(store.layered[n], n, options, out);

    command.writeTable("--csv", out.responseText.str());
    command.writeTable("--csv-moduli", out.moduliText.str());
    command.writeTable("--csv-damage", out.damageText.str());
    writeFileAtomically(files.text, out.text.str());
    const bool plotted = static_cast<Integer>(out.problems.size()) == store.NPROB;
    if (plotted) writeBedFile(files.plot, out.problems);
    command.announce(files, plotted);
}

}  // namespace

int runTolstrat(int argc, char** argv) {
    SolverCommand command(TOLSTRAT);
    Options options;
    command.addTable("--csv-moduli", "the moduli of nonlinear and viscoelastic layers, by iteration,");
    command.addTable("--csv-damage", "the damage");
    command.options()
        .add_option("--threads", options.threads, "load groups and periods solved at the same time")
        ->check(CLI::Range(1, 64));
    return command.run(argc, argv, [&](const ResultFiles& files) {
        options.quiet = command.quiet();
        solveDeck(files, command, options);
    });
}
