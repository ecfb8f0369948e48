#include "model/store.h"
#include "project/reader.h"
#include "project/writer.h"
#include "scenes/scenes.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace zentrik {

namespace {

// About 100,000 records in motion: nearly every real has all its digits.
Editor movingLattice() {
    Editor ed = scenes::latticeOf(20000);
    float drift = 0.1234567F;
    for (Node& node : ed.Nodes) {
        drift = drift * 1.37F + 0.0101F;
        if (drift > 30000) drift /= 271828;
        node.Vx = drift;
        node.Vy = -drift / 3;
        node.Vxo = drift * 7;
    }
    for (Link& link : ed.Links) link.CurrentLength = link.RestLength * 1.0123F;
    return ed;
}

void writeProject(benchmark::State& state) {
    const Editor ed = movingLattice();
    std::int64_t bytes = 0;
    for (auto _ : state) bytes += static_cast<std::int64_t>(projectBytes(ed).size());
    state.SetBytesProcessed(bytes);
}
BENCHMARK(writeProject)->Unit(benchmark::kMillisecond);

void readProject(benchmark::State& state) {
    const std::string file = projectBytes(movingLattice());
    for (auto _ : state) benchmark::DoNotOptimize(parseProject(file));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(file.size()));
    state.counters["records"] = static_cast<double>(std::count(file.begin(), file.end(), '\n'));
}
BENCHMARK(readProject)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace zentrik
