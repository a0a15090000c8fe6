// Speed of the layered theory on the job it meets most: a tandem axle on five layers.
#include <benchmark/benchmark.h>

#include "solvers/layered_theory/layered_theory.h"

namespace {

using namespace layered_theory;

Structure fiveLayers() {
    return {{{4, 500000, 0.35}, {8, 40000, 0.35}, {8, 20000, 0.4}, {12, 12000, 0.4}, {0, 7500, 0.45}}, {}};
}

/// As many equal layers as asked for in place of the five.
Structure layersOf(int count) {
    Structure s;
    for (int i = 0; i < count; ++i) s.layers.push_back({32.0 / count, 500000.0 / (1 + i), 0.35});
    return s;
}

const Load TANDEM{4.5, 75, {{0, 0}, {0, 13.5}, {48, 0}, {48, 13.5}}};

std::vector<Position> pointsAlong(int count) {
    std::vector<Position> points;
    for (int i = 0; i < count; ++i) points.push_back({24.0 * i / count, 6.75 * i / count});
    return points;
}

const std::vector<Depth> DEPTHS{{0}, {4}, {12}, {20}, {32}};

void run(benchmark::State& state, const std::vector<Structure>& periods,
         const std::vector<Position>& points) {
    for (auto _ : state) benchmark::DoNotOptimize(solve(periods, TANDEM, points, DEPTHS));
    state.counters["cycles"] = solve(periods, TANDEM, points, DEPTHS)[0].cycles;
}

void tandemOnFiveLayers(benchmark::State& state) { run(state, {fiveLayers()}, pointsAlong(10)); }
void byPoints(benchmark::State& state) {
    run(state, {fiveLayers()}, pointsAlong(static_cast<int>(state.range(0))));
}
void byLayers(benchmark::State& state) {
    run(state, {layersOf(static_cast<int>(state.range(0)))}, pointsAlong(10));
}
void byPeriods(benchmark::State& state) {
    run(state, std::vector<Structure>(static_cast<std::size_t>(state.range(0)), fiveLayers()),
        pointsAlong(10));
}

BENCHMARK(tandemOnFiveLayers)->Unit(benchmark::kMillisecond);
BENCHMARK(byPoints)->Arg(1)->Arg(25)->Arg(50)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK(byLayers)->Arg(2)->Arg(5)->Arg(10)->Arg(19)->Unit(benchmark::kMillisecond);
BENCHMARK(byPeriods)->Arg(1)->Arg(4)->Arg(12)->Unit(benchmark::kMillisecond);

}  // namespace
