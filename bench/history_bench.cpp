// What keeping the history adds to an event, and what a step back costs. Argument: nodes.

#include "history/history.h"
#include "history/timeline.h"
#include "scenes/scenes.h"
#include "sim/run.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace zentrik {
namespace {

struct Model {
    Editor ed;
    History history;

    explicit Model(benchmark::State& state) : ed(scenes::latticeOf(static_cast<int>(state.range(0)))) {
        startHistory(history, ed);
    }
    void moveAll(int distance) {
        for (Node& node : ed.Nodes) node.X += distance;
    }
    void record(int moved) {
        beginEvent(history, ed, Event::command);
        moveAll(moved);
        endEvent(history, ed, Event::command, "Moved");
    }
};

void eventWithoutChange(benchmark::State& state) {
    Model model(state);
    for (auto _ : state) model.record(0);
}
void oneNodeMoved(benchmark::State& state) {
    Model model(state);
    for (auto _ : state) {
        beginEvent(model.history, model.ed, Event::command);
        ++model.ed.Nodes[1].X;
        endEvent(model.history, model.ed, Event::command, "Moved");
    }
    state.counters["bytes_a_step"] =
        static_cast<double>(model.history.bytes) / static_cast<double>(model.history.done.size());
}
void everyNodeMoved(benchmark::State& state) {
    Model model(state);
    for (auto _ : state) model.record(15);
}
void everyNodeMovedWithoutHistory(benchmark::State& state) {
    Model model(state);
    for (auto _ : state) model.moveAll(15);
}
void undoAndRedo(benchmark::State& state) {
    Model model(state);
    model.record(15);
    for (auto _ : state) {
        stepBack(model.history, model.ed);
        stepForth(model.history, model.ed);
    }
}

// What a recovery copy takes of the event loop; a worker writes it.
void copyOfTheModel(benchmark::State& state) {
    const Editor ed = scenes::latticeOf(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        auto copy = std::make_unique<Editor>();
        static_cast<Contents&>(*copy) = ed;
        benchmark::DoNotOptimize(copy);
    }
    state.counters["links"] = static_cast<double>(ed.Links.size());
}

// After a run of a thousand steps, step by step back.
void stepBackInTime(benchmark::State& state) {
    Editor ed = scenes::latticeOf(static_cast<int>(state.range(0)));
    Timeline timeline;
    ed.Timer1.enabled = true;
    const int steps = 1000;
    for (int i = 0; i < steps; ++i) tick(timeline, ed);
    for (auto _ : state) {
        travel(timeline, ed, -1);
        if (timeline.at <= 1) travel(timeline, ed, steps);
    }
    state.counters["moments"] = static_cast<double>(timeline.run.moments.size());
}
void tickWithTimeline(benchmark::State& state) {
    Editor ed = scenes::latticeOf(static_cast<int>(state.range(0)));
    Timeline timeline;
    ed.Timer1.enabled = true;
    for (auto _ : state) tick(timeline, ed);
}
void tickWithoutTimeline(benchmark::State& state) {
    Editor ed = scenes::latticeOf(static_cast<int>(state.range(0)));
    for (auto _ : state) Timer1_Timer(ed);
}

BENCHMARK(stepBackInTime)->Arg(100)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(tickWithTimeline)->Arg(100)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(tickWithoutTimeline)->Arg(100)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(copyOfTheModel)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(eventWithoutChange)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(oneNodeMoved)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(everyNodeMoved)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(everyNodeMovedWithoutHistory)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(undoAndRedo)->Arg(10000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zentrik
