#pragma once
// The step: physics alone. What shows it stands in sim/run.h. tests/plain_step.cpp has the same step in plain
// loops, without what makes it fast.

#include "sim/step_report.h"

namespace zentrik {

// Advances the whole model by one time step and shows nothing. A step that cannot go on (a free node of
// mass 0, a value that is not finite, a position beyond 32 bits) puts every node back to its state before
// the step.
// Costs O(links + nodes + nodes x attracting nodes + nodes x barrier links), whatever touches what.
StepReport advance(Editor& ed);

// Seconds of model time by which one step advances the clock: 0.005 in slow motion.
float stepSize(const Editor& ed);

}  // namespace zentrik
