// Editing a model of 10,000 nodes and 40,000 links.

#include "edit/bulk.h"
#include "edit/hit.h"
#include "edit/mouse.h"
#include "edit/objects.h"
#include "edit/transforms.h"
#include "rig.h"
#include "scenes/scenes.h"

#include <benchmark/benchmark.h>

namespace zentrik {
namespace {

constexpr int modelNodes = 10000;

// The pointer over nothing is the dearest case: every node and every link is asked.
void pointerOverNothing(benchmark::State& state) {
    Editor ed = scenes::latticeOf(modelNodes);
    std::int32_t over = none;
    for (auto _ : state) {
        benchmark::DoNotOptimize(OverNode(ed, 100, 100, over));
        benchmark::DoNotOptimize(OverLink(ed, 100, 100, over));
    }
}
BENCHMARK(pointerOverNothing)->Unit(benchmark::kMicrosecond);

void dragNode(benchmark::State& state) {
    Editor ed = scenes::latticeOf(modelNodes);
    ed.SelectedNode = modelNodes / 2;
    ed.MouseIsDown = true;
    float x = 0;
    for (auto _ : state) picS_MouseMove(ed, leftButton, x += 1, 100);
}
BENCHMARK(dragNode)->Unit(benchmark::kMicrosecond);

// Runs a command on a fresh model each time, the copying of the model not counted.
template <class Command>
void onFreshModel(benchmark::State& state, Command command, std::int32_t hitRadius = 90) {
    Editor model = scenes::latticeOf(modelNodes);
    model.SelectedNode = 1;
    model.HitRadius = hitRadius;
    ScriptedHost host;
    for (auto _ : state) {
        state.PauseTiming();
        Editor ed = model;
        state.ResumeTiming();
        command(ed, host);
        state.PauseTiming();
        ed = Editor();
        state.ResumeTiming();
    }
}

void duplicateObject(benchmark::State& state) {
    onFreshModel(state, mnuDuplicateObject_Click, static_cast<std::int32_t>(state.range(0)));
}
BENCHMARK(duplicateObject)->ArgName("hitRadius")->Arg(90)->Arg(3000)->Unit(benchmark::kMillisecond);

void removeFreeNodes(benchmark::State& state) { onFreshModel(state, mnuRemoveFreeNodes_Click); }
BENCHMARK(removeFreeNodes)->Unit(benchmark::kMicrosecond);

void rotate(benchmark::State& state) {
    Editor ed = scenes::latticeOf(modelNodes);
    for (auto _ : state) RotateAnimation(ed);
}
BENCHMARK(rotate)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zentrik
