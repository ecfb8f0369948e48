#pragma once
// The property toolbar as read-out of the selection. Its values are refreshed when something becomes
// selected, so that a change made elsewhere shows at the next selection; its pressed buttons follow every
// redraw.

#include "model/editor.h"

namespace zentrik {

void DisplayNodeData(Editor& ed, std::int32_t i);
void DisplayLinkData(Editor& ed, std::int32_t i);
// The two-state buttons alone, for whatever is selected: a button that stands for a state since changed
// would do the opposite of what it shows.
void showSelectedStates(Editor& ed);

// Place of a sprite's name in the sprite list, from the first entry on, exactly equal; 0 without a match.
std::int32_t spriteEntryOf(const Editor& ed, const std::string& name);

}  // namespace zentrik
