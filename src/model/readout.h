#pragma once
// The property toolbar as read-out of the selection. Refreshed when something becomes selected; a
// change made elsewhere shows at the next selection.

#include "model/editor.h"

namespace zentrik {

void DisplayNodeData(Editor& ed, std::int32_t i);
void DisplayLinkData(Editor& ed, std::int32_t i);

// Place of a sprite's name in the sprite list, from the first entry on, exactly equal; 0 without a match.
std::int32_t spriteEntryOf(const Editor& ed, const std::string& name);

}  // namespace zentrik
