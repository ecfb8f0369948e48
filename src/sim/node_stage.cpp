#include "sim/node_stage.h"

#include "model/numbers.h"
#include "model/store.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zentrik {

namespace {

constexpr const char* notFinite = "holds a value that is not finite";
constexpr const char* leftTheWorld = "has left the world";

bool isFinite(const Node& node) { return std::isfinite(wide(node.Vx) + node.Vy); }

bool inTheWorld(double x, double y) {
    constexpr double farthest = std::numeric_limits<std::int32_t>::max();
    return std::fabs(x) <= farthest && std::fabs(y) <= farthest;
}

// What moves all nodes along one axis.
struct Motion {
    double dt, viscosity, wind, gravity;
};

// Drag and wind, velocity, place from the new velocity, each in its own short loop: the processor looks
// ahead only so far. (Half of a quotient is the quotient of the half, to the last bit: no 32-bit force
// is so small that halving it could lose one.)
ZENTRIK_WIDE_LOOP void integrate(const NodeLanes& lanes, const NodeLanes::Axis& from, const Motion& motion,
                                 NodeLanes::Axis& to) {
    const auto [dt, viscosity, wind, gravity] = motion;
    NodeLanes::Column<double> acceleration;
    for (std::size_t m = 0; m < lanes.count; ++m) {
        to.force[m] = real(from.force[m] - viscosity * from.velocity[m] * 10 + wind);
        acceleration[m] = to.force[m] / wide(lanes.mass[m]);
    }
    for (std::size_t m = 0; m < lanes.count; ++m)
        to.velocity[m] = real((acceleration[m] + gravity) * dt + from.velocity[m]);
    for (std::size_t m = 0; m < lanes.count; ++m)
        to.place[m] = dt * dt * (acceleration[m] * 0.5) + dt * to.velocity[m] + from.place[m];
}

std::string problemText(std::int32_t i, const char* reason) {
    return "Node " + std::to_string(i) + " " + reason;
}

}  // namespace

NodeStage::NodeStage(Editor& editor, ForcePoints& points, Attraction& attraction, Barriers& barriers)
    : ed(editor),
      points_(points),
      attraction_(attraction),
      barriers_(barriers),
      bounds_(boundsOf(editor)),
      attracts_(!attraction.empty()),
      testBarriers_(!editor.marks.mnuIgnoreBarriers),
      recolour_(editor.marks.mnuRandom && editor.Cycles % 10 == 0) {}

std::string NodeStage::run(float dt, std::int32_t lastFree) {
    lastFree_ = lastFree;
    const Motion sideways{dt, wide(ed.Viscosity), ed.LeftWind * 1000.0, 0};
    const Motion downwards{dt, wide(ed.Viscosity), 0, wide(real(ed.Gravity * 10000.0))};
    std::string problem;
    for (std::int32_t i = 1; i <= lastNode(ed) && problem.empty();) {
        const std::int32_t end = gatherRun(i);
        if (attracts_) attraction_.pull(lanes_);
        integrate(lanes_, lanes_.x, sideways, arrivalX_);
        integrate(lanes_, lanes_.y, downwards, arrivalY_);
        i = commitRun(i, end, problem);
    }
    if (problem.empty() && contacts_.touched) return checkVelocities();
    return problem;
}

// Fills the lanes with the free nodes of a run; gives the node behind it.
std::int32_t NodeStage::gatherRun(std::int32_t from) {
    const std::int32_t last = lastNode(ed);
    lanes_.small = true;
    std::size_t m = 0;
    std::int32_t i = from;
    for (bool ends = false; i <= last && m < NodeLanes::size && !ends; ++i) {
        const Node& node = nodeAt(ed, i);
        __builtin_prefetch(&nodeAt(ed, std::min(i + 24, last)), 1);  // a large model's are far away
        if (!node.Used || node.Locked) continue;
        const Float2 force = pointAt(points_, i).force;
        lanes_.x.place[m] = node.X;
        lanes_.y.place[m] = node.Y;
        lanes_.x.force[m] = force[0];
        lanes_.y.force[m] = force[1];
        lanes_.x.velocity[m] = node.Vx;
        lanes_.y.velocity[m] = node.Vy;
        lanes_.mass[m] = node.Mass;
        if (!isSmall(node.X, node.Y)) lanes_.small = false;
        ends = node.Gravity != 0;
        ++m;
    }
    lanes_.count = m;
    return i;
}

// Hands a run's arrivals to its nodes, up to the first one at a wall; gives the node to go on with.
std::int32_t NodeStage::commitRun(std::int32_t from, std::int32_t to, std::string& problem) {
    std::size_t lane = 0;
    for (std::int32_t i = from; i < to; ++i) {
        Node& node = nodeAt(ed, i);
        if (node.Used && recolour_) node.color = GetRandomColor(ed.chance);
        const bool free = node.Used && !node.Locked;
        const char* reason = free ? move(i, node, lane++) : hold(i, node);
        if (reason != nullptr) {
            problem = problemText(i, reason);
            return to;
        }
        if (contacts_.othersChanged) {
            contacts_.othersChanged = false;
            attraction_.updateAll(ed);
            return i + 1;
        }
    }
    return to;
}

// A node that stays where it is keeps what it gathered. Like move, gives what is wrong or null.
const char* NodeStage::hold(std::int32_t i, Node& node) const {
    const Float2 force = pointAt(points_, i).force;
    node.Fx = force[0];
    node.Fy = force[1];
    return node.Used && !std::isfinite(wide(node.Fx) + node.Fy) ? notFinite : nullptr;
}

const char* NodeStage::move(std::int32_t i, Node& node, std::size_t lane) {
    node.Vx = arrivalX_.velocity[lane];
    node.Vy = arrivalY_.velocity[lane];
    if (!inTheWorld(arrivalX_.place[lane], arrivalY_.place[lane]))
        return isFinite(node) ? leftTheWorld : notFinite;
    node.X = static_cast<std::int32_t>(std::llrint(arrivalX_.place[lane]));
    node.Y = static_cast<std::int32_t>(std::llrint(arrivalY_.place[lane]));
    node.Fx = 0;
    node.Fy = 0;
    const char* problem = nullptr;
    if (testBarriers_ || bounds_.touchedBy(node)) problem = meetContacts(i, node);
    if (node.Gravity != 0) attraction_.update(i, node);
    if (i == ed.SelectedNode) plotPath(node);
    return problem;
}

void NodeStage::plotPath(const Node& node) {
    if (ed.marks.mnuDisplayPath)
        ed.pathDots.push_back({toInt(node.X / 2.0), toInt(node.Y / 2.0), node.color});
}

const char* NodeStage::meetContacts(std::int32_t i, Node& node) {
    floorAndCeiling(ed, i, bounds_);
    if (ed.marks.mnuWalls) walls(ed, i, bounds_, contacts_);
    if (testBarriers_) meetBarriers(i, node);
    return isFinite(node) ? nullptr : notFinite;
}

// Status panel 5 shows what the last node's test found; the other nodes' are overwritten unseen.
void NodeStage::meetBarriers(std::int32_t i, Node& node) {
    if (contacts_.othersChanged)
        barriers_.update(ed);
    else
        barriers_.nodeMoved(ed, i);
    if (i < lastFree_) {
        barriers_.deflect(ed, i);
    } else if (const auto distance = barriers_.BarrierTest(ed, node)) {
        panel(ed, 5) = realText(*distance);
    }
}

// A wall contact scales the velocities of nodes that were looked at already.
std::string NodeStage::checkVelocities() const {
    for (std::int32_t i = 1; i <= lastNode(ed); ++i)
        if (nodeAt(ed, i).Used && !isFinite(nodeAt(ed, i))) return problemText(i, notFinite);
    return {};
}

}  // namespace zentrik
