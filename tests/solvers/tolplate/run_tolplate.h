// TOLPLATE run on data of a test.
#pragma once

#include "plots/pan_file.h"
#include "slab/slab_deck.h"
#include "solvers/tolplate/command.h"
#include "support/slab_stores.h"
#include "support/solver_runs.h"
#include "support/temporary_directory.h"

inline Outcome run(const std::vector<std::string>& arguments, const SlabSolver& solver = TOLPLATE) {
    return runSolver([&](int argc, char** argv) { return runTolplate(solver, argc, argv); }, arguments);
}

inline std::unique_ptr<Store> readExample(const std::string& name) {
    auto store = std::make_unique<Store>();
    const auto read = readSlabDeck(TOLMARK_SOURCE_DIR "/examples/" + name, *store);
    EXPECT_EQ(read.outcome, DeckReadResult::Outcome::Complete) << name << ": " << read.sentence();
    return store;
}

inline std::vector<PanRun> readPan(const std::string& path) {
    std::vector<PanRun> runs;
    PanReader reader(path);
    while (auto problem = reader.next()) {
        PanRun run{*problem, {}};
        reader.readLoads(run.problem);
        for (int p = 1; p <= problem->NPY; ++p)
            for (int g = 1; g <= problem->NLG; ++g) run.results[p][g] = reader.readResults(run.problem);
        if (problem->NDAMA > 0) reader.readDesignLife(run.problem);
        runs.push_back(run);
    }
    return runs;
}

struct SolvedSlabs {
    Outcome outcome;
    std::vector<Row> nodes, joints;
    std::string text;
    std::vector<PanRun> plots;
};

/// The deck of a store, solved with all tables.
inline SolvedSlabs solveSlabs(const Store& store, const SlabSolver& solver = TOLPLATE) {
    const TemporaryDirectory folder;
    const std::string path = folder.path();
    saveSlabDeck(store, path + "a slab.DAT");
    SolvedSlabs solved;
    solved.outcome = run({path + "a slab", "--csv", path + "n.csv", "--csv-joints", path + "j.csv"}, solver);
    solved.text = folder.read("a slab.TXT");
    if (solved.outcome.status != SOLVED) return solved;
    solved.nodes = csvRows(folder.read("n.csv"));
    solved.joints = csvRows(folder.read("j.csv"));
    solved.plots = readPan(path + "a slab.PAN");
    return solved;
}

inline void setGrid(SlabSet::Slab& slab, int NX, int NY, double dx, double dy) {
    slab.NX = static_cast<Integer>(NX);
    slab.NY = static_cast<Integer>(NY);
    for (int i = 1; i <= NX; ++i) slab.X[i] = static_cast<Single>((i - 1) * dx);
    for (int i = 1; i <= NY; ++i) slab.Y[i] = static_cast<Single>((i - 1) * dy);
}

/// 5 by 4 nodes, 240 by 180 long, 10 thick, in the deck's units; no load.
inline std::unique_ptr<Store> slabStore(Integer NUNIT = 0) {
    auto store = singleSlabStore();
    SlabSet& s = store->slab[1];
    s.NUNIT = NUNIT;
    setUnitDefaults(s);
    setGrid(s.SLAB[1], 5, 4, 60, 60);
    s.LAYER[1].T = 10;
    s.NUDL[1] = 0;
    s.FMAX = 0.0;
    return store;
}

/// Two such slabs side by side; joint 1 has dowels.
inline std::unique_ptr<Store> twoSlabs() {
    auto store = slabStore();
    SlabSet& s = store->slab[1];
    s.NSLAB = 2;
    s.NJOINT = 1;
    s.SLAB[2] = s.SLAB[1];
    s.SLAB[1].JONO2 = s.SLAB[2].JONO1 = 1;
    s.JOINT[1] = {0.0, 0.0, 1.5e6, 1.25, 12.0, .25, 0.0, 0.0, {}};
    return store;
}

inline void addForce(SlabSet& s, int node, double force) {
    s.FORCE[++s.NCNF] = {static_cast<double>(node), force};
}
