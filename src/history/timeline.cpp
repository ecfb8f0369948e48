#include "history/timeline.h"

#include "sim/run.h"
#include "sim/step.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <numeric>

namespace zentrik {

namespace {

constexpr std::int64_t stride = 16;  // steps between two moments of a run, as long as there is room
constexpr std::int64_t runway = 32;  // steps before a destination at which a moment is kept, for the next
                                     // step back

std::size_t bytesOf(const Moment& moment) {
    return sizeof moment + (moment.difference ? moment.difference->size() : 0);
}
std::size_t bytesOf(const Contents& contents) {
    return contents.Nodes.size() * sizeof(Node) + contents.Links.size() * sizeof(Link);
}

std::size_t bytesOfAll(const Timeline& timeline) {
    return std::accumulate(
        timeline.former.begin(), timeline.former.end(), timeline.run.bytes,
        [](std::size_t sum, const RecordedRun& run) { return sum + run.bytes + bytesOf(*run.first); });
}

Moment momentOf(const RecordedRun& run, const Editor& ed, std::int64_t step, bool pinned) {
    std::optional<Difference> difference = differenceBetween(*run.first, ed);
    return {step,
            pinned,
            difference ? std::make_shared<const Difference>(*std::move(difference)) : nullptr,
            stepInputsOf(ed),
            ed.InitialVelocityPending,
            ed.Cycles};
}

void drop(RecordedRun& run, std::vector<Moment>::iterator moment) {
    run.bytes -= bytesOf(*moment);
    run.moments.erase(moment);
}

// The moment least missed: the shorter the way its successor would be from its predecessor, and the
// farther from where the model is, the less. The very first is never one.
auto leastMissed(RecordedRun& run, std::int64_t at) {
    auto least = run.moments.end();
    double lowest = std::numeric_limits<double>::infinity();
    for (auto m = run.moments.begin() + 1; m < run.moments.end() - 1; ++m) {
        if (m->pinned) continue;
        const double way = static_cast<double>((m + 1)->step - (m - 1)->step);
        const double far = static_cast<double>(std::abs(m->step - at)) + 1;
        if (way / far < lowest) lowest = way / far, least = m;
    }
    return least;
}

// Where all moments are pinned the oldest part of the run is forgotten, but for that where the model is.
bool thinOut(RecordedRun& run, std::int64_t at) {
    if (run.moments.size() <= 2) return false;
    const auto least = leastMissed(run, at);
    if (least == run.moments.end() && run.moments[1].step > at) return false;
    drop(run, least != run.moments.end() ? least : run.moments.begin());
    const std::int64_t oldest = run.moments.front().step;
    std::erase_if(run.places, [oldest](const auto& place) { return place.second < oldest; });
    return true;
}

void keepWithinLimit(Timeline& timeline) {
    while (bytesOfAll(timeline) > timeline.limit)
        if (!timeline.former.empty())
            timeline.former.erase(timeline.former.begin());
        else if (!thinOut(timeline.run, timeline.at))
            return;
}

void keep(Timeline& timeline, Moment moment) {
    RecordedRun& run = timeline.run;
    const auto place = std::upper_bound(run.moments.begin(), run.moments.end(), moment.step,
                                        [](std::int64_t step, const Moment& m) { return step < m.step; });
    run.bytes += bytesOf(moment);
    run.moments.insert(place, std::move(moment));
    keepWithinLimit(timeline);
}

// The run as it went on from here stays a former one.
void dropWhatCameAfter(Timeline& timeline) {
    RecordedRun& run = timeline.run;
    const std::int64_t at = timeline.at;
    if (run.last == at) return;
    timeline.former.push_back(run);
    run.parent = std::exchange(run.branch, ++timeline.branches);
    run.branchedAt = run.last = at;
    while (run.moments.back().step > at) drop(run, run.moments.end() - 1);
    std::erase_if(run.places, [at](const auto& place) { return place.second > at; });
    std::erase_if(run.starts, [at](std::int64_t start) { return start > at; });
}

void begin(Timeline& timeline, Editor& ed) {
    timeline.at = 0;
    timeline.edited = false;
    timeline.run = {};
    timeline.run.first = std::make_shared<const Contents>(ed);
    timeline.run.branch = ++timeline.branches;
    timeline.run.seed = ed.chance.seedSource();
    timeline.run.places[timeline.state] = 0;
    keep(timeline, momentOf(timeline.run, ed, 0, true));
}

// Makes the model as it stands a moment of its own.
void pinPresent(Timeline& timeline, const Editor& ed) {
    dropWhatCameAfter(timeline);
    keep(timeline, momentOf(timeline.run, ed, timeline.at, true));
    timeline.edited = false;
}

// A model that was taken to a step from the moment before it.
Editor replayTo(Timeline& timeline, std::int64_t target) {
    const Moment& from = momentBefore(timeline.run, target);
    Editor replay = modelAt(timeline.run, from);
    for (std::int64_t number = from.step; number < target; ++number) {
        if (number == target - runway) keep(timeline, momentOf(timeline.run, replay, number, false));
        makeStep(timeline.run, replay, number, stepUnseen);
    }
    return replay;
}

// Whether the run passes through the model as it stands.
bool isPassed(Timeline& timeline, const Editor& ed) {
    return !differenceBetween(replayTo(timeline, timeline.at), ed);
}

}  // namespace

void tick(Timeline& timeline, Editor& ed) {
    RecordedRun& run = timeline.run;
    const bool isStart = !timeline.running && !ed.SingleStep;
    if (run.moments.empty())
        begin(timeline, ed);
    else if (isStart || timeline.edited || stepInputsOf(ed) != momentBefore(run, timeline.at).inputs)
        pinPresent(timeline, ed);
    dropWhatCameAfter(timeline);
    if (isStart) run.starts.push_back(timeline.at);
    makeStep(run, ed, timeline.at, Timer1_Timer);
    run.last = ++timeline.at;
    timeline.running = ed.Timer1.enabled;
    if (timeline.at % stride == 0) keep(timeline, momentOf(run, ed, timeline.at, false));
}

void noteEdit(Timeline& timeline) { timeline.edited = true; }

void noteState(Timeline& timeline, std::uint64_t state) {
    timeline.state = state;
    if (!timeline.run.moments.empty()) timeline.run.places[state] = timeline.at;
}

void findState(Timeline& timeline, std::uint64_t state) {
    const auto holds = [state](const RecordedRun& run) { return run.places.contains(state); };
    if (!holds(timeline.run)) {
        RecordedRun left = std::exchange(timeline.run, {});
        const auto found = std::find_if(timeline.former.rbegin(), timeline.former.rend(), holds);
        if (found != timeline.former.rend()) {
            timeline.run = std::move(*found);
            timeline.former.erase(std::next(found).base());
        }
        if (!left.moments.empty()) timeline.former.push_back(std::move(left));
    }
    timeline.at = holds(timeline.run) ? timeline.run.places[state] : 0;
    timeline.running = false;
    timeline.edited = true;
}

void travel(Timeline& timeline, Editor& ed, std::int64_t steps) {
    RecordedRun& run = timeline.run;
    if (run.moments.empty()) return;
    if (timeline.edited && !isPassed(timeline, ed)) pinPresent(timeline, ed);
    timeline.edited = false;
    timeline.at = std::clamp(timeline.at + steps, run.moments.front().step, run.last);
    const Editor replay = replayTo(timeline, timeline.at);
    static_cast<Contents&>(ed) = replay;
    ed.InitialVelocityPending = replay.InitialVelocityPending;
    ed.Cycles = replay.Cycles;
}

}  // namespace zentrik
