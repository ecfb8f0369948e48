#pragma once
// The steps that can be undone and redone. One is a change of the model; what the animation makes is a step
// of the run (history/timeline.h).

#include "history/difference.h"
#include "model/store.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <vector>

namespace zentrik {

inline constexpr std::size_t historyLimit = 64U << 20;  // bytes of all steps; the newest always stays

// What comes back beside the model.
struct Context {
    std::int32_t SelectedNode = none, SelectedLink = none, SelectedAnimatorLink = none;
    std::string savedText;  // the project list's text
};

struct Size {
    std::ptrdiff_t nodes = 0, links = 0;
};
inline Size sizeOf(const Contents& it) { return {UsedNodes(it), UsedLinks(it)}; }

struct State {
    std::uint64_t number = 0;  // see History::state
    Size size;
};

struct Step {
    std::string what;  // for a person: "All nodes removed"
    Context before, after;
    Difference difference;
    std::uint64_t from = 0, to = 0;  // the states it leads between, see History::state
    bool run = false;
    Size size{};      // of the model it leads to
    State largest{};  // since a model was thrown away; see lost_work.h
};

// A model that was thrown away though no file holds it.
struct Lost {
    Contents model;
    std::string project;  // the project list's text
};

struct History {
    std::deque<Step> done, undone;  // the next one to undo or redo is the last
    std::size_t bytes = 0;          // of both
    Contents shown;                 // the model as the newest step left it
    std::uint64_t state = 0;        // number of that state; no two states share one
    std::uint64_t newest = 0;       // the highest number given

    // The state that each project's file holds, by the project's name.
    std::map<std::string, std::uint64_t> filed;
    std::int32_t filedCount = 0, replacedCount = 0, goneCount = 0;

    // What has changed since then and goes on changing.
    enum class Going { nothing, run, drag, travel } going = Going::nothing;
    Going stepped = Going::nothing;  // what goes on and was made a step for the event at hand
    bool changed = false;            // the last event changed the model
    Context context;                 // as it was when nothing was going on
    std::string said;                // status panel 5 before the event

    std::vector<Lost> lost;        // until the window takes it
    std::uint64_t undoneKept = 0;  // the last undone state that was put there
    bool running = false;          // after the last event
};

}  // namespace zentrik
