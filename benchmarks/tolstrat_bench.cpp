// Speed of a whole run on a deck that asks for everything: 12 periods and 12 load groups, nonlinear and
// viscoelastic layers under a moving load, damage. It is to take 2 seconds at most on two cores.
#include <benchmark/benchmark.h>

#include <cmath>
#include <filesystem>
#include <memory>

#include "layered/layered_deck.h"
#include "solvers/tolstrat/command.h"
#include "store/store.h"

namespace {

void setLayers(LayeredSet& s) {
    const double TH[] = {4, 4, 8, 8, 12}, PR[] = {.35, .35, .35, .35, .4, .45};
    const double GAM[] = {145, 145, 135, 130, 125, 120};
    s.NL = 6;
    for (int i = 1; i <= 6; ++i) {
        if (i < 6) s.LAYER[i].TH = TH[i - 1];
        s.LAYER[i].PR = PR[i - 1];
        s.LAYER[i].GAM = GAM[i - 1];
    }
}

/// Half single axles, half tandems, heavier from group to group.
void setLoads(LayeredSet& s) {
    for (int g = 1; g <= 12; ++g) {
        const int kind = g % 2 + 1;
        s.LOADL[g] = {kind, 3.5 + .1 * g, 70.0 + 3 * g, 13.5, kind > 1 ? 48.0 : 0.0, 4};
        for (int j = 1; j <= 4; ++j) s.PT[g][j] = {0.0, 2.25 * (j - 1)};
    }
}

/// A granular base and a clay above the last layer, one viscoelastic layer on top; other values by period.
void setMaterials(LayeredSet& s) {
    s.NOLAY = 2, s.ITENOL = 15, s.DELNOL = .01;
    s.RCNOL = 0, s.XCNOL = 0, s.YCNOL = 6.75, s.SLD = 0;
    s.NOLLAY[1] = {3, 12.0, 0};
    s.NOLLAY[2] = {5, 25.0, 1};
    s.KGRAN[1] = {.5, .6};
    s.KCLAY[2] = {6.2, 1110.0, 178.0, .8};
    s.DUR = .1, s.NVL = 1, s.NTYME = 11;
    s.VISLAY[1] = {1, .1, 70.0};
    for (int t = 1; t <= 11; ++t) {
        const double time = (t % 2 == 1 ? 1 : 3) * std::pow(10, (t - 1) / 2 - 3);
        s.TYME[t] = time;
        s.CREEP[1][t] = static_cast<Single>(1e-6 + 5e-6 * std::pow(time, .4));
    }
    for (int p = 1; p <= 12; ++p) {
        const double warmth = std::sin(p * .5);
        for (int i = 1; i <= 6; ++i) s.EMOD[p][i] = i == 2 ? 300000.0 : i == 4 ? 20000.0 : 10000.0;
        s.RELAX[p] = .5F;
        s.KPER[1][p][1] = 0, s.KPER[1][p][2] = 7000.0 - 500 * warmth;
        s.KPER[2][p][1] = 2000.0, s.KPER[2][p][2] = 15000.0, s.KPER[2][p][3] = 7000.0 - 1500 * warmth;
        s.TEMP[p][1] = 65 + 20 * warmth;
    }
}

void setDamage(LayeredSet& s) {
    s.NDAMA = 1, s.NLBT = 1, s.NLTC = 1;
    s.DAMBT[1] = {2, .0796, 3.291, .854};
    s.DAMTC[1] = {6, 1.365e-9F, 4.477F};
    for (int p = 1; p <= 12; ++p)
        for (int g = 1; g <= 12; ++g) s.TNLR[p][g] = 5000;
}

void combinedDeck(benchmark::State& state) {
    const auto store = std::make_unique<Store>();
    store->NPROB = 1;
    LayeredSet& s = store->layered[1];
    s.TITLE = "Combined";
    s.MATL = 4, s.NPY = 12, s.NLG = 12, s.DEL = .001F, s.ICL = 80, s.NSTD = 9, s.NBOND = 1;
    setLayers(s);
    setLoads(s);
    setMaterials(s);
    setDamage(s);
    const std::string path = std::filesystem::temp_directory_path() / "tolstrat_bench";
    saveLayeredDeck(*store, path);

    std::string program = "TOLSTRAT.EXE", deck = path, quiet = "--quiet", option = "--threads",
                threads = std::to_string(state.range(0));
    char* argv[] = {program.data(), deck.data(), quiet.data(), option.data(), threads.data()};
    for (auto _ : state)
        if (runTolstrat(5, argv) != SOLVED) state.SkipWithError("the deck was not solved");
    for (const char* ending : {".DAT", ".TXT", ".BED"}) std::filesystem::remove(path + ending);
}

BENCHMARK(combinedDeck)
    ->Arg(1)
    ->Arg(2)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime();

}  // namespace
