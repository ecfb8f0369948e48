// The step over spring lattices, with attracting nodes and with barriers, beside a plain loop over
// springs to compare with in the same run.

#include "model/connected.h"
#include "model/store.h"
#include "scenes/scenes.h"
#include "sim/step.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace zentrik {

namespace {

Editor running(int nodes) {
    Editor ed = scenes::latticeOf(nodes);
    ed.Gravity = 0;
    ed.Viscosity = 1;
    ed.marks.mnuWalls = ed.marks.mnuCeiling = ed.marks.mnuIgnoreBarriers = true;
    ed.buttons.animation = true;
    return ed;
}

void step(benchmark::State& state) {
    Editor ed = running(static_cast<int>(state.range(0)));
    for (auto _ : state) advance(ed);
    state.counters["links"] = static_cast<double>(lastLink(ed));
}
BENCHMARK(step)->Arg(100)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

void attraction(benchmark::State& state) {
    Editor ed = running(static_cast<int>(state.range(0)));
    ed.Links.resize(1);
    const std::int32_t count = static_cast<std::int32_t>(state.range(1));
    for (std::int32_t m = 0; m < count; ++m) nodeAt(ed, 1 + m * (lastNode(ed) - 1) / count).Gravity = 0.01F;
    for (auto _ : state) advance(ed);
}
BENCHMARK(attraction)->ArgsProduct({{100, 1000, 10000, 32000}, {0, 10, 100}})->Unit(benchmark::kMicrosecond);

void barriers(benchmark::State& state) {
    Editor ed = running(static_cast<int>(state.range(0)));
    ed.Links.resize(1);
    ed.marks.mnuIgnoreBarriers = false;
    for (int m = 0; m < 100; ++m) {
        const int x = 1500 + (m % 10) * 1500;
        const int y = 300 + (m / 10) * 1500;
        const bool level = m % 2 == 0;
        const auto a = scenes::addNode(ed, x, y);
        const auto b = scenes::addNode(ed, level ? x + 1200 : x, level ? y : y + 1200);
        nodeAt(ed, a).Locked = nodeAt(ed, b).Locked = true;
        linkAt(ed, scenes::addLink(ed, a, b)).Barrier = true;
    }
    for (auto _ : state) advance(ed);
}
BENCHMARK(barriers)->Arg(100)->Arg(1000)->Arg(10000)->Arg(32000)->Unit(benchmark::kMicrosecond);

void connectedObject(benchmark::State& state) {
    Editor ed = running(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        std::int32_t start = 1;
        MarkConnectedNodes(ed, start, none);
    }
}
BENCHMARK(connectedObject)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

struct alignas(64) PlainNode {
    float x, y, fx, fy;
};
struct alignas(64) PlainSpring {
    int a, b;
    float rest, k;
};

void plainSprings(benchmark::State& state) {
    const Editor ed = running(static_cast<int>(state.range(0)));
    std::vector<PlainNode> nodes;
    for (const Node& node : ed.Nodes)
        nodes.push_back({static_cast<float>(node.X), static_cast<float>(node.Y), 0, 0});
    std::vector<PlainSpring> springs;
    for (const Link& link : ed.Links) springs.push_back({link.N1, link.N2, link.RestLength, link.k});
    springs.erase(springs.begin());
    for (auto _ : state) {
        for (const PlainSpring& s : springs) {
            PlainNode& a = nodes[static_cast<std::size_t>(s.a)];
            PlainNode& b = nodes[static_cast<std::size_t>(s.b)];
            const double dx = static_cast<double>(a.x) - b.x, dy = static_cast<double>(a.y) - b.y;
            const double length = std::sqrt(dx * dx + dy * dy);
            const double pull = (length - s.rest) * s.k * 100 / length;
            a.fx -= static_cast<float>(dx * pull);
            b.fx += static_cast<float>(dx * pull);
            a.fy -= static_cast<float>(dy * pull);
            b.fy += static_cast<float>(dy * pull);
        }
        benchmark::DoNotOptimize(nodes.data());
    }
    state.counters["springs"] = static_cast<double>(springs.size());
}
BENCHMARK(plainSprings)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace zentrik
