#include "history/timeline.h"

#include "sim/run.h"

#include <algorithm>
#include <limits>

namespace zentrik {

namespace {

constexpr std::int64_t stride = 16;  // steps between two moments of a run, as long as there is room
constexpr std::int64_t runway = 32;  // steps before a destination at which a moment is kept, for the next
                                     // step back
constexpr std::uint64_t spread = 0xD1342543DE82EF95U;  // parts the chance of one step from the next

std::size_t bytesOf(const Moment& moment) {
    return sizeof moment + (moment.difference ? moment.difference->size() : 0);
}

Moment momentOf(const Timeline& timeline, const Editor& ed, std::int64_t step, bool pinned) {
    return {
        step,     pinned, differenceBetween(timeline.first, ed), stepInputsOf(ed), ed.InitialVelocityPending,
        ed.Cycles};
}

// The last moment of a step or before it.
auto momentBefore(Timeline& timeline, std::int64_t step) {
    const auto behind =
        std::upper_bound(timeline.moments.begin(), timeline.moments.end(), step,
                         [](std::int64_t wanted, const Moment& m) { return wanted < m.step; });
    return behind - 1;
}

void drop(Timeline& timeline, std::vector<Moment>::iterator moment) {
    timeline.bytes -= bytesOf(*moment);
    timeline.moments.erase(moment);
}

// The moment least missed: the shorter the way its successor would be from its predecessor, and the
// farther from where the model is, the less. The very first is never one.
auto leastMissed(Timeline& timeline) {
    auto least = timeline.moments.end();
    double lowest = std::numeric_limits<double>::infinity();
    for (auto m = timeline.moments.begin() + 1; m < timeline.moments.end() - 1; ++m) {
        if (m->pinned) continue;
        const double way = static_cast<double>((m + 1)->step - (m - 1)->step);
        const double far = static_cast<double>(std::abs(m->step - timeline.at)) + 1;
        if (way / far < lowest) lowest = way / far, least = m;
    }
    return least;
}

void keepWithinLimit(Timeline& timeline) {
    while (timeline.bytes > timeline.limit && timeline.moments.size() > 2) {
        const auto least = leastMissed(timeline);
        // Where all are pinned the oldest part of the run is forgotten.
        drop(timeline, least != timeline.moments.end() ? least : timeline.moments.begin());
    }
}

void keep(Timeline& timeline, Moment moment) {
    const auto place =
        timeline.moments.empty() ? timeline.moments.begin() : momentBefore(timeline, moment.step) + 1;
    timeline.bytes += bytesOf(moment);
    timeline.moments.insert(place, std::move(moment));
    keepWithinLimit(timeline);
}

void dropWhatCameAfter(Timeline& timeline) {
    timeline.last = timeline.at;
    while (!timeline.moments.empty() && timeline.moments.back().step > timeline.at)
        drop(timeline, timeline.moments.end() - 1);
}

void begin(Timeline& timeline, Editor& ed) {
    forgetRun(timeline);
    copyContents(timeline.first, ed);
    timeline.seed = ed.chance.seedSource();
    keep(timeline, momentOf(timeline, ed, 0, true));
}

// Makes the model as it stands a moment of its own.
void pinPresent(Timeline& timeline, const Editor& ed) {
    dropWhatCameAfter(timeline);
    keep(timeline, momentOf(timeline, ed, timeline.at, true));
    timeline.edited = false;
}

void step(const Timeline& timeline, Editor& ed, std::int64_t number) {
    ed.chance.tie(timeline.seed + static_cast<std::uint64_t>(number) * spread);
    Timer1_Timer(ed);
    ed.chance.loosen();
}

}  // namespace

void tick(Timeline& timeline, Editor& ed) {
    const bool isStart = !timeline.running && !ed.SingleStep;
    if (timeline.moments.empty() || isStart)
        begin(timeline, ed);
    else if (timeline.edited || stepInputsOf(ed) != momentBefore(timeline, timeline.at)->inputs)
        pinPresent(timeline, ed);
    dropWhatCameAfter(timeline);
    step(timeline, ed, timeline.at);
    timeline.last = ++timeline.at;
    timeline.running = ed.Timer1.enabled;
    if (timeline.at % stride == 0) keep(timeline, momentOf(timeline, ed, timeline.at, false));
}

void noteEdit(Timeline& timeline) { timeline.edited = true; }

void forgetRun(Timeline& timeline) {
    timeline.moments.clear();
    timeline.bytes = 0;
    timeline.at = timeline.last = 0;
    timeline.running = timeline.edited = false;
}

void travel(Timeline& timeline, Editor& ed, std::int64_t steps) {
    if (timeline.moments.empty()) return;
    if (timeline.edited) pinPresent(timeline, ed);
    const std::int64_t target = std::clamp(timeline.at + steps, timeline.moments.front().step, timeline.last);
    const auto from = momentBefore(timeline, target);
    Editor replay;
    copyContents(replay, timeline.first);
    if (from->difference) {
        Contents contents = timeline.first;
        apply(*from->difference, Way::forth, contents);
        copyContents(replay, contents);
    }
    stepInputsOf(replay) = from->inputs;
    replay.InitialVelocityPending = from->InitialVelocityPending;
    replay.Cycles = from->Cycles;
    timeline.at = target;
    const std::int64_t start = from->step;
    for (std::int64_t number = start; number < target; ++number) {
        if (number == target - runway) keep(timeline, momentOf(timeline, replay, number, false));
        step(timeline, replay, number);
    }
    copyContents(ed, replay);
    ed.InitialVelocityPending = replay.InitialVelocityPending;
    ed.Cycles = replay.Cycles;
}

}  // namespace zentrik
