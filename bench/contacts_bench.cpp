// Steps of models that lie at a wall or among barriers.

#include "model/store.h"
#include "scenes/contacts.h"
#include "scenes/scenes.h"
#include "sim/step.h"

#include <benchmark/benchmark.h>

namespace zentrik {

namespace {

void run(benchmark::State& state, Editor ed) {
    for (auto _ : state) advance(ed);
    state.counters["nodes"] = static_cast<double>(lastNode(ed));
    state.counters["links"] = static_cast<double>(lastLink(ed));
}

void latticeAtWall(benchmark::State& state) {
    run(state, scenes::latticeAtWall(static_cast<int>(state.range(0))));
}
void looseAtWall(benchmark::State& state) {
    run(state, scenes::looseAtWall(static_cast<int>(state.range(0))));
}
void chainAlongWall(benchmark::State& state) {
    run(state, scenes::chainAlongWall(static_cast<int>(state.range(0))));
}
BENCHMARK(latticeAtWall)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(looseAtWall)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(chainAlongWall)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

// Free nodes, and barriers on ends that move themselves.
void barriersWithFreeEnds(benchmark::State& state) {
    run(state,
        scenes::freeBarriers(static_cast<int>(state.range(0)), static_cast<int>(state.range(0)) * 2 / 5));
}
BENCHMARK(barriersWithFreeEnds)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

void heedingNoBarriers(benchmark::State& state) {
    Editor ed = scenes::latticeOf(static_cast<int>(state.range(0)));
    ed.Gravity = 0;
    ed.Viscosity = 1;
    ed.marks.mnuIgnoreBarriers = false;
    run(state, ed);
}
BENCHMARK(heedingNoBarriers)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace zentrik
