#pragma once
// Ready-made structures: rings of nodes around the selected node, and a node in the middle of the
// selected link. The ring builders ask for "nodes:radius" and remember the answer.

#include "model/editor.h"

namespace zentrik {

class Host;

// The largest ring built; a larger number in the answer is refused in status panel 5.
inline constexpr std::int32_t largestRing = 100000;

void mnuCreateNodeRing_Click(Editor& ed, Host& host);
void mnuCreateConnectedNodeRing_Click(Editor& ed, Host& host);
void mnuCreateConnectedNodeRingWithSpokes_Click(Editor& ed, Host& host);
void mnuCreateConnectedNodeRingWithSpokesNo_Click(Editor& ed, Host& host);
void mnuCreateConnectedNodeRingWithLongSpokes_Click(Editor& ed, Host& host);
void mnuCreateNodeAtMidpoint_Click(Editor& ed, Host& host);

}  // namespace zentrik
