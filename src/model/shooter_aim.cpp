#include "model/shooter_aim.h"

#include "basics/angles.h"
#include "basics/numbers.h"
#include "model/store.h"

#include <cmath>

namespace zentrik {

std::int32_t GetTriggerNode(const Editor& ed, std::int32_t i) {
    for (const Link& link : ed.Links) {
        if (!link.Used || !endsExist(ed, link)) continue;
        if (link.N1 == i) return link.N2;
        if (link.N2 == i) return link.N1;
    }
    return 0;
}

std::vector<std::int32_t> triggerNodes(const Editor& ed) {
    std::vector<std::int32_t> triggers(ed.Nodes.size(), 0);
    const auto first = [&](std::int32_t i, std::int32_t other) {
        std::int32_t& trigger = triggers[static_cast<std::size_t>(i)];
        if (trigger == 0) trigger = other;
    };
    forEachLink(ed, [&](std::int32_t, const Link& link) {
        first(link.N1, link.N2);
        first(link.N2, link.N1);
    });
    return triggers;
}

// A shooter that has no link looks for one every time, so all of them share one pass over the links.
void lockTriggers(Editor& ed) {
    std::vector<std::int32_t> triggers;
    forEachNode(ed, [&](std::int32_t i, Node& node) {
        if (!takesAim(node)) return;
        if (node.Trigger == 0) {
            if (triggers.empty()) triggers = triggerNodes(ed);
            node.Trigger = triggers[static_cast<std::size_t>(i)];
        }
        if (nodeExists(ed, node.Trigger)) nodeAt(ed, node.Trigger).Locked = true;
    });
}

float GetVectorAngle(float dx, float dy) {
    if (dx == 0) return dy < 0 ? toReal(aimQuarter) : dy > 0 ? toReal(aimThreeQuarters) : 0;
    if (dy == 0) return dx < 0 ? toReal(aimHalf) : 0;
    const double a = std::fabs(std::atan(static_cast<double>(dy) / static_cast<double>(dx)));
    if (dx > 0) return toReal(dy < 0 ? a : aimTurn - a);
    return toReal(dy < 0 ? aimHalf - a : aimHalf + a);
}

float barrelAngle(const Editor& ed, const Node& shooter) {
    const Node& trigger = nodeAt(ed, shooter.Trigger);
    return GetVectorAngle(toReal(static_cast<double>(shooter.X) - trigger.X),
                          toReal(static_cast<double>(shooter.Y) - trigger.Y));
}

}  // namespace zentrik
