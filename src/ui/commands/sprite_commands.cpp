#include "ui/commands/sprite_commands.h"

#include "model/readout.h"
#include "model/redraw.h"
#include "model/store.h"

#include <utility>

namespace zentrik {

namespace {

void giveSprite(const Editor& ed, Node& node, std::int32_t entry) {
    node.Sprite = ed.spriteNames[static_cast<std::size_t>(entry)];
    node.SpriteIndex = entry;
}

}  // namespace

void listSprites(Editor& ed, const std::vector<std::string>& names) {
    ed.spriteNames = names;
    for (auto* nodes : {&ed.Nodes, &ed.SavedNodes})
        for (Node& node : *nodes)
            if (node.SpriteIndex == 0) node.SpriteIndex = spriteEntryOf(ed, node.Sprite);
    ed.sceneStale = true;
}

void lstSprites_Click(Editor& ed, std::int32_t entry) {
    if (entry < 0 || std::cmp_greater_equal(entry, ed.spriteNames.size())) return;
    ed.spriteEntry = entry;
    if (Node* node = selectedNode(ed)) giveSprite(ed, *node, entry);
}

void imgSprite_Click(Editor& ed, std::int32_t Index) {
    if (ed.SelectedNode != none) lstSprites_Click(ed, Index);
    redrawScene(ed);
}

bool giveSprite(Editor& ed, std::int32_t node, const std::string& name) {
    const std::int32_t entry = spriteEntryOf(ed, name);
    if (entry == 0) return false;
    giveSprite(ed, nodeAt(ed, node), entry);
    if (node == ed.SelectedNode) ed.spriteEntry = entry;
    return true;
}

void mnuRandomNodes_Click(Editor& ed, Host&) {
    const auto pictures = static_cast<std::int32_t>(ed.spriteNames.size()) - 1;
    if (pictures == 0) return;
    ed.chance.reseed();
    for (std::int32_t i = 1; i <= lastNode(ed); ++i)
        giveSprite(ed, nodeAt(ed, i),
                   static_cast<std::int32_t>(static_cast<double>(pictures) * ed.chance.next()) + 1);
    redrawScene(ed);
}

}  // namespace zentrik
