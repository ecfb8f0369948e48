#include "measure/run_measures.h"

#include "basics/no_doubles.h"
#include "model/extent.h"
#include "model/store.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace zentrik {

namespace {

constexpr const char* energyUnit = "mass twips^2/time unit^2";

constexpr Measure table[] = {
    {"distance", "twips", "how far the centre of mass came across, to either side", false,
     [](const RunWatch& w, const Editor& ed) { return std::fabs(centreOfMass(ed).x - w.start.x); }},
    {"height", "twips", "how high the centre of mass rose above its start at most", true,
     [](const RunWatch& w, const Editor&) { return w.rise; }},
    {"energy", energyUnit, "kinetic, spring and gravity energy at the end", false,
     [](const RunWatch&, const Editor& ed) {
         return kineticEnergy(ed) + springEnergy(ed) + gravityEnergy(ed);
     }},
    {"kinetic", energyUnit, "kinetic energy at the end", false,
     [](const RunWatch&, const Editor& ed) { return kineticEnergy(ed); }},
    {"spring", energyUnit, "spring energy at the end", false,
     [](const RunWatch&, const Editor& ed) { return springEnergy(ed); }},
    {"settled", "time units", "when a node last moved by more than a twip in a step", true,
     [](const RunWatch& w, const Editor&) { return w.lastMove; }},
    {"speed", "twips/time unit", "the greatest speed of any node at any time", true,
     [](const RunWatch& w, const Editor&) { return w.speed; }},
    {"x", "twips", "where the centre of mass is at the end", false,
     [](const RunWatch&, const Editor& ed) { return centreOfMass(ed).x; }},
    {"y", "twips", "where the centre of mass is at the end, downwards", false,
     [](const RunWatch&, const Editor& ed) { return centreOfMass(ed).y; }},
    {"width", "twips", "extent of all nodes at the end, across", false,
     [](const RunWatch&, const Editor& ed) { return extentOf(ed.Nodes).width(); }},
    {"tallness", "twips", "extent of all nodes at the end, upwards", false,
     [](const RunWatch&, const Editor& ed) { return extentOf(ed.Nodes).height(); }},
    {"steps", "", "steps made; fewer than asked for where the model could not go on", false,
     [](const RunWatch& w, const Editor&) { return static_cast<double>(w.steps); }},
};
static_assert(!anyShared(table, [](const Measure& measure) { return std::string_view(measure.name); }));

}  // namespace

std::span<const Measure> measures() { return table; }

RunWatch::RunWatch(const Editor& ed, bool closely) : start(centreOfMass(ed)), closely_(closely) {
    if (closely_) places_.resize(ed.Nodes.size());
    for (std::size_t i = 0; i < places_.size(); ++i) places_[i] = {ed.Nodes[i].X, ed.Nodes[i].Y};
}

void RunWatch::look(const Editor& ed, float dt) {
    time += static_cast<double>(dt);
    rise = std::max(rise, start.y - centreOfMass(ed).y);
    speed = std::max(speed, greatestSpeed(ed));
    forEachNode(ed, [&](std::int32_t i, const Node& node) {
        Spot& before = places_[static_cast<std::size_t>(i)];
        const auto far = [](std::int32_t a, std::int32_t b) {
            return std::abs(static_cast<std::int64_t>(a) - b) > 1;
        };
        if (far(node.X, before.x) || far(node.Y, before.y)) lastMove = time;
        before = {node.X, node.Y};
    });
}

}  // namespace zentrik
