#include "model/invariants.h"

#include "model/store.h"

#include <cmath>

namespace zentrik {

namespace {

// Compaction and clearing leave some selections behind that name no slot any more; every reader asks
// whether the slot exists. What none of them expects is slot 0 or another negative number.
bool validSelection(std::int32_t selection) { return selection == none || selection >= 1; }

std::string brokenNode(const Editor& ed) {
    for (std::int32_t i = 1; i <= lastNode(ed); ++i) {
        const Node& node = nodeAt(ed, i);
        const double sum = static_cast<double>(node.Vx) + node.Vy + node.Fx + node.Fy;
        if (node.Used && !std::isfinite(sum))
            return "node " + std::to_string(i) + " holds a value that is not finite";
    }
    return {};
}

}  // namespace

std::string brokenRule(const Editor& ed) {
    if (ed.Nodes.empty() || ed.Links.empty()) return "slot 0 is missing";
    if (ed.SavedNodes.empty() || ed.SavedLinks.empty()) return "slot 0 of the snapshot is missing";
    if (ed.Nodes[0].Used || ed.Links[0].Used) return "slot 0 is in use";
    for (const std::int32_t selection : {ed.SelectedNode, ed.HoverNode, ed.SelectedLink, ed.HoverLink,
                                         ed.SelectedAnimatorLink, ed.PhaseOverLink})
        if (!validSelection(selection)) return "a selection is " + std::to_string(selection);
    if (ed.spriteNames.empty() || ed.spriteNames[0] != noSprite)
        return "the sprite list lacks its first entry";
    if (ed.timerPeriod < 1) return "the timer has no period";
    return brokenNode(ed);
}

}  // namespace zentrik
