// Six slabs of 15 x 15 nodes with dowelled joints, one thread. Wanted: at most 0.3 s on a
// liquid foundation and 5 s on a half-space; a contact cycle cheaper than the first
// solution; a year of 12 periods and 12 load groups at little more than a factor a period.
#include <benchmark/benchmark.h>

#include "solvers/plate/plate.h"

namespace {

std::vector<double> lines(double length, int nodes) {
    std::vector<double> at;
    for (int i = 0; i < nodes; ++i) at.push_back(length * i / (nodes - 1));
    return at;
}

/// Three slabs along x in two rows; joints 1 to 4 run along y, 5 to 7 between the rows.
plate::Problem sixSlabs(plate::FoundationKind kind) {
    plate::Problem p;
    const auto x = lines(180, 15), y = lines(144, 15);
    p.slabs = {{x, y, {0, 1, 0, 5}}, {x, y, {0, 2, 5, 0}}, {x, y, {1, 3, 0, 6}},
               {x, y, {2, 4, 6, 0}}, {x, y, {3, 0, 0, 7}}, {x, y, {4, 0, 7, 0}}};
    p.layers = {{10, 0.15, 4e6, 0.0868}};
    p.joints.assign(7, {0, 0, 1.5e6, 1, 12, 0.25, 0, {}});
    p.YMSB = 29e6;
    p.PRSB = 0.3;
    p.foundation.kind = kind;
    p.foundation.SUBMOD = 100;
    p.foundation.YMS = 1e4;
    p.foundation.PRS = 0.4;
    p.foundation.TH = {6};
    p.foundation.E = {5e4, 1e4};
    p.foundation.PRBF = {0.35, 0.45};
    p.groups = {{{3, 80, 100, 0, 20, 90}, {3, 80, 100, 70, 90, 90}}};
    return p;
}

void run(benchmark::State& state, const plate::Problem& problem) {
    for (auto _ : state) {
        const auto solution = plate::solve(problem);
        if (solution.fault) state.SkipWithError(solution.fault->text.c_str());
        benchmark::DoNotOptimize(solution.cases.data());
        state.counters["cycles"] = solution.cases[0].contact.cycles;
    }
}

void fullContact(benchmark::State& state, plate::FoundationKind kind) { run(state, sixSlabs(kind)); }

/// Night-time curling lifts the edges; less the time of full contact this is that of the cycles.
void partialContact(benchmark::State& state, plate::FoundationKind kind) {
    plate::Problem p = sixSlabs(kind);
    p.NWT = true;
    p.NCYCLE = 15;
    p.TEMP = 20;
    p.CT = 5e-6;
    run(state, p);
}

void year(benchmark::State& state, plate::FoundationKind kind) {
    plate::Problem p = sixSlabs(kind);
    p.groups.assign(12, p.groups[0]);
    p.FSAF = {1, 1, 0.8, 0.8, 0.6, 0.6, 0.8, 0.8, 1, 1, 1.5, 1.5};
    run(state, p);
}

/// The sparse factorisation alone, which a liquid foundation should cost little more than.
void factorAlone(benchmark::State& state) {
    const plate::Problem p = sixSlabs(plate::FoundationKind::Liquid);
    const plate::Mesh mesh = plate::makeMesh(p);
    const plate::Structure structure(p, mesh);
    plate::Sparse matrix = structure.stiffness();
    for (int i = 0; i < matrix.rows(); ++i) matrix.coeffRef(i, i) *= 1.001;
    for (auto _ : state) {
        plate::SparseFactor factor(matrix);
        benchmark::DoNotOptimize(factor.info());
        state.counters["unknowns"] = static_cast<double>(matrix.rows());
        state.counters["factor"] = static_cast<double>(factor.matrixL().nestedExpression().nonZeros());
    }
}

using enum plate::FoundationKind;
BENCHMARK(factorAlone)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(fullContact, liquid, Liquid)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(fullContact, solid, Solid)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(fullContact, layer, Layer)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(partialContact, liquid, Liquid)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(partialContact, solid, Solid)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(year, liquid, Liquid)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(year, solid, Solid)->Unit(benchmark::kMillisecond);

}  // namespace
