#include "model/readout.h"

#include "basics/numbers.h"
#include "model/store.h"

#include <algorithm>

namespace zentrik {

namespace {

void showStates(Editor& ed, const Node& node) {
    ed.buttons.locked = node.Locked;
    ed.buttons.shooter = node.Trigger != none;
}

void showStates(Editor& ed, const Link& link) {
    ed.buttons.animator = link.Animator;
    ed.buttons.barrier = link.Barrier;
}

}  // namespace

std::int32_t spriteEntryOf(const Editor& ed, const std::string& name) {
    const auto found = std::find(ed.spriteNames.begin(), ed.spriteNames.end(), name);
    return found == ed.spriteNames.end() ? 0 : static_cast<std::int32_t>(found - ed.spriteNames.begin());
}

void DisplayNodeData(Editor& ed, std::int32_t i) {
    const Node& node = nodeAt(ed, i);
    showStates(ed, node);
    ed.tips.mass = "Mass: " + realText(node.Mass);
    ed.tips.gforce = "Gravitational Force: " + realText(node.Gravity);
    ed.tips.vxo = "Initial X-Velocity: " + realText(node.Vxo);
    ed.tips.vyo = "Initial Y-Velocity: " + realText(node.Vyo);
    ed.tips.rotate = "Rotational Force: " + realText(node.Rotate);
    ed.spriteEntry = spriteEntryOf(ed, node.Sprite);
}

void DisplayLinkData(Editor& ed, std::int32_t i) {
    const Link& link = linkAt(ed, i);
    showStates(ed, link);
    ed.tips.k = "k: " + realText(link.k);
    ed.tips.angle = "Angle: " + realText(link.Angle);
    ed.tips.force = "Force: " + realText(link.Force);
}

void showSelectedStates(Editor& ed) {
    if (const Node* node = selectedNode(ed)) showStates(ed, *node);
    if (const Link* link = selectedLink(ed)) showStates(ed, *link);
}

}  // namespace zentrik
