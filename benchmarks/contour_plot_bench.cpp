// The contours of the largest slab, 25 x 25 nodes, with as many levels as a page
// can have: at most 50 ms.
#include <benchmark/benchmark.h>

#include <cmath>

#include "plots/contour_tracer.h"

namespace {

void contoursOf25x25Nodes(benchmark::State& state) {
    constexpr int nodes = 25;
    PanProblem pan;
    Contours contours;
    pan.LN = 1;
    pan.NX[1] = pan.NY[1] = nodes;
    for (int i = 1; i <= nodes; ++i) pan.X[1][i] = pan.Y[1][i] = static_cast<Single>(10 * (i - 1));
    for (int i = 1; i <= nodes; ++i)
        for (int j = 1; j <= nodes; ++j)
            contours.SGRID[i][j] =
                2 * std::sin(.7F * static_cast<Single>(i)) * std::cos(.5F * static_cast<Single>(j));
    pan.NCNF = 120;
    for (int m = 1; m <= pan.NCNF; ++m) pan.NN[m] = m, pan.FF[m] = 1000;
    contours.CBOT = -3;
    for (int m = 1; m <= 45; ++m)
        contours.levels.push_back({2.5F - static_cast<Single>(m - 1) * .1F, m % 2 == 0});
    for (auto _ : state) {
        Kernel q;
        q.QScreen();
        q.QPlotSetup(9, 85, 32, 84, 0, 240, 0, 240);
        QCntou(q, pan, contours);
        benchmark::DoNotOptimize(q.page().ops.size());
    }
}
BENCHMARK(contoursOf25x25Nodes)->Unit(benchmark::kMillisecond);

}  // namespace
