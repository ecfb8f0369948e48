#include "sim/contacts/contacts.h"

#include "basics/numbers.h"
#include "model/store.h"
#include "sim/contacts/pair.h"

namespace zentrik {

namespace {

constexpr std::int64_t margin = 45;  // twips

void bounceVertically(const Editor& ed, Node& node) {
    node.Vy = real(-wide(node.Vy) * ed.Bounce);
    node.Vx = real(node.Vx * (1 - wide(ed.Friction)));
}

}  // namespace

Bounds boundsOf(const Editor& ed) {
    const std::int64_t r = ed.NodeRadius;
    return {r, ed.sceneWidth - r - margin, ed.sceneHeight - r - margin};
}

void floorAndCeiling(Editor& ed, std::int32_t i, const Bounds& bounds) {
    Node& node = nodeAt(ed, i);
    if (node.Y >= bounds.floor) {
        node.Y = toInt(static_cast<double>(bounds.floor));
        bounceVertically(ed, node);
        if (ed.timerFireWorks.enabled && !ed.marks.mnuPersistentFireworks) {
            node.Used = false;
            if (ed.SelectedNode == i) ed.SelectedNode = none;
        }
    }
    if (ed.marks.mnuCeiling && node.Y <= bounds.low) {
        node.Y = ed.NodeRadius;
        bounceVertically(ed, node);
    }
}

}  // namespace zentrik
