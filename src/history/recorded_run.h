#pragma once
// A run as it is kept: of some moments how the model differs from the run's first. Every other is stepped to
// from the nearest before it, which gives the same bits.

#include "history/difference.h"
#include "model/editor.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <tuple>
#include <utility>
#include <vector>

namespace zentrik {

// What a step reads besides the model.
inline auto stepInputsOf(auto& ed) {
    auto& m = ed.marks;
    return std::tie(m.mnuWalls, m.mnuCeiling, m.mnuIgnoreBarriers, m.mnuReverseModel, m.mnuUseDirectional,
                    m.mnuPersistentFireworks, ed.timerFireWorks.enabled, m.mnuRandom, ed.buttons.slow,
                    ed.buttons.animation, ed.buttons.ball, ed.NodeRadius, ed.sceneWidth, ed.sceneHeight);
}
template <class... T>
std::tuple<T...> valuesOf(const std::tuple<T&...>& references) {
    return references;
}
using StepInputs = decltype(valuesOf(stepInputsOf(std::declval<Editor&>())));

struct Moment {
    std::int64_t step = 0;
    bool pinned = false;  // no step leads here from the moment before
    // From the first; none where they are the same. Former runs share it.
    std::shared_ptr<const Difference> difference;
    StepInputs inputs;
    bool InitialVelocityPending = false;
    std::int32_t Cycles = 0;
};

struct RecordedRun {
    std::shared_ptr<const Contents> first;
    std::vector<Moment> moments;       // in order; none before the first step
    std::size_t bytes = 0;             // of the moments
    std::int64_t last = 0;             // how far it went, in steps
    std::uint64_t seed = 0;            // of its chance
    std::vector<std::int64_t> starts;  // of the animation, by their steps, in order
    // No two ways that a run takes share a number. Where one was left the other goes on as `branch`, with the
    // steps up to `branchedAt` from `parent`.
    std::uint64_t branch = 0, parent = 0;
    std::int64_t branchedAt = 0;
    // The steps at which states lie that undo knows, by their numbers (see History::state).
    std::map<std::uint64_t, std::int64_t> places;
};

// The last moment of a step or before it; there must be one.
const Moment& momentBefore(const RecordedRun& run, std::int64_t step);

// Makes the step of this number, seen or unseen.
void makeStep(const RecordedRun& run, Editor& ed, std::int64_t number, void (*step)(Editor&));
// The same with nothing shown.
void stepUnseen(Editor& ed);

// The model as it was at a moment.
Editor modelAt(const RecordedRun& run, const Moment& moment);

// Goes through the steps from one to another, both included, and shows the model as each step left it; what
// was changed after a step is seen from the next one on. Ends early when visit says false. Any thread may
// call it.
void goThrough(const RecordedRun& run, std::int64_t from, std::int64_t to,
               const std::function<bool(const Editor& ed, std::int64_t step)>& visit);

// The steps around one between a start of the animation and the next, or the run's end.
struct Stretch {
    std::int64_t begin = 0, end = 0;
};
Stretch stretchAt(const RecordedRun& run, std::int64_t step);

}  // namespace zentrik
