#pragma once
#include "model/editor.h"

namespace zentrik {

// Advances the whole model by one time step and redraws. A step that cannot go on (a free node of
// mass 0, a value that is not finite, a position beyond 32 bits) puts every node back to its state before
// the step, and gives the node and the reason in words; one that worked gives the empty text.
// Costs O(links + nodes + nodes x attracting nodes + nodes x barrier links), whatever touches what.
std::string CalculatePositions(Editor& ed);

// Seconds of model time by which one step advances the clock: 0.005 in slow motion.
float stepSize(const Editor& ed);

}  // namespace zentrik
