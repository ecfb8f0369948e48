#pragma once
// The run since the last start, step by step, so that it can be gone through back and forth. Of some moments
// it keeps how the model differs from the run's first; every other is stepped to from the nearest before
// it, which gives the same bits. What a step cannot repeat (an edit, a shot, fireworks, a switched option)
// has a moment of its own.

#include "history/difference.h"

#include <cstdint>
#include <tuple>
#include <utility>
#include <vector>

namespace zentrik {

// What a step reads besides the model.
inline auto stepInputsOf(auto& ed) {
    auto& m = ed.marks;
    return std::tie(m.mnuWalls, m.mnuCeiling, m.mnuIgnoreBarriers, m.mnuReverseModel, m.mnuUseDirectional,
                    m.mnuPersistentFireworks, ed.timerFireWorks.enabled, m.mnuRandom,
                    m.mnuDisplayAngleManager, ed.buttons.slow, ed.buttons.animation, ed.buttons.ball,
                    ed.NodeRadius, ed.sceneWidth, ed.sceneHeight, ed.phaseWidth);
}
template <class... T>
std::tuple<T...> valuesOf(const std::tuple<T&...>& references) {
    return references;
}
using StepInputs = decltype(valuesOf(stepInputsOf(std::declval<Editor&>())));

struct Moment {
    std::int64_t step = 0;
    bool pinned = false;                   // no step leads here from the moment before
    std::optional<Difference> difference;  // from the first; none where they are the same
    StepInputs inputs;
    bool InitialVelocityPending = false;
    std::int32_t Cycles = 0;
};

struct Timeline {
    std::size_t limit = 64U << 20;  // bytes of all moments; thinned out where they are dense and far away
    Contents first;
    std::vector<Moment> moments;  // in order; none before the first step
    std::size_t bytes = 0;
    std::int64_t at = 0, last = 0;  // steps since the start: where the model is, and how far it went
    std::uint64_t seed = 0;         // of the run's chance
    bool running = false;           // the last step was one of a run that goes on
    bool edited = false;            // something else changed the model since then
    std::int32_t replacedCount = 0;
};

// One step of the animation timer. Where the model is at an earlier time, what came after is dropped.
void tick(Timeline& timeline, Editor& ed);
// Another event changed the model, or may have.
void noteEdit(Timeline& timeline);
// The run is no longer this model's.
void forgetRun(Timeline& timeline);

// Takes the model `steps` on (back if negative), as far as the run goes. O(1) steps where they are few.
void travel(Timeline& timeline, Editor& ed, std::int64_t steps);

}  // namespace zentrik
