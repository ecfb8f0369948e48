#include "history/recorded_run.h"

#include "sim/run.h"
#include "sim/step.h"

#include <algorithm>

namespace zentrik {

namespace {

constexpr std::uint64_t spread = 0xD1342543DE82EF95U;  // parts the chance of one step from the next

}  // namespace

const Moment& momentBefore(const RecordedRun& run, std::int64_t step) {
    const auto behind =
        std::upper_bound(run.moments.begin(), run.moments.end(), step,
                         [](std::int64_t wanted, const Moment& m) { return wanted < m.step; });
    return *(behind - 1);
}

void makeStep(const RecordedRun& run, Editor& ed, std::int64_t number, void (*step)(Editor&)) {
    ed.chance.tie(run.seed + static_cast<std::uint64_t>(number) * spread);
    step(ed);
    ed.chance.loosen();
}

void stepUnseen(Editor& ed) {
    countCycle(ed);
    advance(ed);
}

Editor modelAt(const RecordedRun& run, const Moment& moment) {
    Editor ed;
    Contents& contents = ed;
    contents = *run.first;
    if (moment.difference) apply(*moment.difference, Way::forth, contents);
    stepInputsOf(ed) = moment.inputs;
    ed.InitialVelocityPending = moment.InitialVelocityPending;
    ed.Cycles = moment.Cycles;
    return ed;
}

void goThrough(const RecordedRun& run, std::int64_t from, std::int64_t to,
               const std::function<bool(const Editor& ed, std::int64_t step)>& visit) {
    const Moment* begin = &momentBefore(run, from);
    Editor ed = modelAt(run, *begin);
    for (std::int64_t step = begin->step; step <= to; ++step) {
        if (step >= from && !visit(ed, step)) return;
        const Moment& here = momentBefore(run, step);
        if (here.step == step && here.pinned) ed = modelAt(run, here);
        makeStep(run, ed, step, stepUnseen);
    }
}

Stretch stretchAt(const RecordedRun& run, std::int64_t step) {
    const std::int64_t oldest = run.moments.empty() ? 0 : run.moments.front().step;
    const auto next = std::upper_bound(run.starts.begin(), run.starts.end(), step);
    const std::int64_t begin = next == run.starts.begin() ? 0 : *(next - 1);
    return {std::max(begin, oldest), next == run.starts.end() ? run.last : *next};
}

}  // namespace zentrik
