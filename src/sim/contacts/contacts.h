#pragma once
// The edges of the scene, and the contacts of a node that the step has just moved with floor and ceiling.

#include "model/editor.h"

#include <cstdint>

namespace zentrik {

// The lines of the scene at which a node's centre stops, twips. The margin of 45 keeps nodes clear of
// the lower and right edge.
struct Bounds {
    std::int64_t low, right, floor;  // low: the ceiling's and the left wall's line

    bool touchedBy(const Node& node) const {
        return node.X <= low || node.Y <= low || node.X >= right || node.Y >= floor;
    }
};
Bounds boundsOf(const Editor& ed);

// The floor frees the node while fireworks run, unless they are persistent.
void floorAndCeiling(Editor& ed, std::int32_t i, const Bounds& bounds);

}  // namespace zentrik
