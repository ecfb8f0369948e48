#pragma once
// Giving nodes their sprites.

#include "ui/commands/commands.h"

namespace zentrik {

// The sprite list was filled: nodes that had no picture of their sprite find it by name.
void listSprites(Editor& ed, const std::vector<std::string>& names);
// An entry of the sprite list was chosen: it becomes the selected node's sprite.
void lstSprites_Click(Editor& ed, std::int32_t entry);
// A picture of the sprite browser was clicked; Index is its entry in the list.
void imgSprite_Click(Editor& ed, std::int32_t Index);
// Gives a node the sprite of a name. False when the list has none.
bool giveSprite(Editor& ed, std::int32_t node, const std::string& name);
// Gives every node slot a random sprite.
void mnuRandomNodes_Click(Editor& ed, Host& host);

}  // namespace zentrik
