#include "ui/commands/property_commands.h"

#include "basics/numbers.h"
#include "host/host.h"
#include "model/redraw.h"
#include "model/shooter_aim.h"
#include "model/store.h"

namespace zentrik {

namespace {

void tell(Editor& ed, const char* what, std::int32_t number, const std::string& change) {
    panel(ed, 5) = what + std::to_string(number) + change;
}

void bringToRest(Node& node) { node.Vx = node.Vy = node.Fx = node.Fy = 0; }

}  // namespace

void lockedClicked(Editor& ed, Host&) {
    Node& node = nodeAt(ed, ed.SelectedNode);
    node.Locked = ed.buttons.locked;
    if (!node.Locked) bringToRest(node);
    tell(ed, "Node ", ed.SelectedNode, node.Locked ? " locked!" : " unlocked!");
    redrawScene(ed);
}

void shooterClicked(Editor& ed, Host&) {
    Node& node = nodeAt(ed, ed.SelectedNode);
    ed.buttons.locked = node.Locked = ed.buttons.shooter;
    if (node.Locked) {
        node.Trigger = GetTriggerNode(ed, ed.SelectedNode);
        if (node.Trigger > 0) nodeAt(ed, node.Trigger).Locked = true;
        tell(ed, "Node ", ed.SelectedNode,
             " is now a shooter (trigger = " + std::to_string(node.Trigger) + "!");
    } else {
        if (nodeExists(ed, node.Trigger)) nodeAt(ed, node.Trigger).Locked = false;
        node.Trigger = none;
        bringToRest(node);
        tell(ed, "Node ", ed.SelectedNode, " is now a standard node!");
    }
    redrawScene(ed);
}

void colorClicked(Editor& ed, Host& host) {
    const std::int32_t chosen = host.SelectColor();
    if (Node* node = chosen != none ? selectedNode(ed) : nullptr) {
        node->color = chosen;
        ed.SelectedNode = none;  // so that the new colour shows
    }
    redrawScene(ed);
}

void animatorClicked(Editor& ed, Host&) {
    Link& link = linkAt(ed, ed.SelectedLink);
    link.Animator = ed.buttons.animator;
    panel(ed, 5) = std::string("Animator: ") + booleanText(ed.buttons.animator) + "   (" +
                   booleanText(link.Animator) + ")";
    redrawScene(ed);
    redrawPhaseManager(ed, ed.AnimationTime);
}

void linkBarrierClicked(Editor& ed, Host&) {
    Link& link = linkAt(ed, ed.SelectedLink);
    link.Barrier = ed.buttons.barrier;
    tell(ed, "Link ", ed.SelectedLink, link.Barrier ? " is a barrier!" : " is not a barrier!");
    redrawScene(ed);
}

}  // namespace zentrik
