#pragma once
// What can be asked of a run in one number.

#include "measure/quantities.h"

#include <span>
#include <vector>

namespace zentrik {

// A run as it is watched, from its start on.
class RunWatch {
public:
    // `closely`: every step is looked at; else only the start and the end.
    RunWatch(const Editor& start, bool closely);
    // After each step.
    void stepped(const Editor& ed, float dt) {
        ++steps;
        if (closely_) look(ed, dt);
    }

    Place start;             // of the centre of mass
    std::int64_t steps = 0;  // made
    double rise = 0;         // most that the centre of mass was above its start, twips
    double speed = 0;        // of the fastest node so far, twips a time unit
    double time = 0;         // since the start
    double lastMove = 0;     // time of the last step that moved a node by more than a twip

private:
    const bool closely_;
    struct Spot {
        std::int32_t x, y;
    };
    std::vector<Spot> places_;  // by node, before the step

    void look(const Editor& ed, float dt);
};

struct Measure {
    const char* name;
    const char* unit;  // empty for a mere number
    const char* meaning;
    bool closely;  // needs a look at every step
    double (*of)(const RunWatch& watch, const Editor& end);
};
std::span<const Measure> measures();

}  // namespace zentrik
