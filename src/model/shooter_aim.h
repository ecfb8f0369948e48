#pragma once
// Where a shooter points: its trigger node and the angles between nodes.

#include "model/editor.h"

namespace zentrik {

// Whether a used node takes aim at a redraw: a shooter does while it is locked.
inline bool takesAim(const Node& node) { return node.Locked && node.Trigger != none; }

// The node at the other end of the first used link that touches node i; 0 when there is none.
std::int32_t GetTriggerNode(const Editor& ed, std::int32_t i);
// The same for every node slot, in one pass over the links.
std::vector<std::int32_t> triggerNodes(const Editor& ed);

// Angle in radians, [0, 2 pi), of the vector (dx, -dy) counter-clockwise from +x; with y growing
// downwards a vector that points up the screen has pi / 2. The zero vector gives 0.
float GetVectorAngle(float dx, float dy);

// Every shooter that takes aim finds its trigger the first time, and keeps it locked from then on.
void lockTriggers(Editor& ed);

// Direction from a shooter's trigger, which must exist, through the shooter. Radians.
float barrelAngle(const Editor& ed, const Node& shooter);

}  // namespace zentrik
