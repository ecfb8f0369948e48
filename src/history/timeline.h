#pragma once
// The run since the model's first step, so that it can be gone through back and forth. Of some moments it
// keeps how the model differs from the run's first; every other is stepped to from the nearest before it,
// which gives the same bits. What a step cannot repeat (a start, an edit, a shot, fireworks, a switched
// option) has a moment of its own.
//
// A run that the model leaves, and one whose later part is dropped, stays as it was: where undo leads back
// into it, it is there again.

#include "history/recorded_run.h"
#include "model/editor.h"

#include <cstdint>
#include <vector>

namespace zentrik {

struct Timeline {
    // Bytes of all runs. The oldest former ones go first, then moments where they are dense and far away.
    std::size_t limit = 64U << 20;
    RecordedRun run;
    std::vector<RecordedRun> former;  // the newest is the last
    std::int64_t at = 0;              // the step of the run at which the model is
    std::uint64_t state = 0;          // the last one that was noted
    std::uint64_t branches = 0;       // of runs, so far
    bool running = false;             // the last step was one of a run that goes on
    bool edited = false;              // something else changed the model since then, or may have
    std::int32_t replacedCount = 0;
};

// One step of the animation timer. Where the model is at an earlier time, what came after is dropped.
void tick(Timeline& timeline, Editor& ed);
// Another event changed the model, or may have.
void noteEdit(Timeline& timeline);
// The model as it stands is a state that undo knows. To be called before anything changes it.
void noteState(Timeline& timeline, std::uint64_t state);
// The model was made a state by something else than a step: finds the run that it lies in, if there is one.
void findState(Timeline& timeline, std::uint64_t state);

// Takes the model `steps` on (back if negative), as far as the run goes; where something else changed it,
// what came after is dropped first. O(1) steps where they are few.
void travel(Timeline& timeline, Editor& ed, std::int64_t steps);

}  // namespace zentrik
