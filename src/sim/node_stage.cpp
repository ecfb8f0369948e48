#include "sim/node_stage.h"

#include "basics/numbers.h"
#include "basics/prefetch.h"
#include "model/store.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace zentrik {

namespace {

constexpr const char* notFinite = "holds a value that is not finite";
constexpr const char* leftTheWorld = "has left the world";

bool isFinite(const Node& node) { return std::isfinite(wide(node.Vx) + node.Vy); }

bool inTheWorld(double x, double y) {
    constexpr double farthest = std::numeric_limits<std::int32_t>::max();
    return std::fabs(x) <= farthest && std::fabs(y) <= farthest;
}

std::string problemText(std::int32_t i, const char* reason) {
    return "Node " + std::to_string(i) + " " + reason;
}

}  // namespace

NodeStage::NodeStage(Editor& editor, const ForcePoints& points, Attraction& attraction, Barriers& barriers,
                     Walls& walls, StepReport& report)
    : ed(editor),
      points_(points),
      attraction_(attraction),
      barriers_(barriers),
      walls_(walls),
      report_(report),
      bounds_(boundsOf(editor)),
      attracts_(!attraction.empty()),
      recolour_(editor.marks.mnuRandom && editor.Cycles % 10 == 0) {}

std::string NodeStage::run(float dt, std::int32_t lastFree) {
    lastFree_ = lastFree;
    walls_.begin(ed, bounds_);
    const Motion motion(ed, dt, bounds_);
    std::string problem;
    for (std::int32_t i = 1; i <= lastNode(ed) && problem.empty();) {
        const std::int32_t end = gatherRun(i);
        if (attracts_) attract();
        integrate(run_, motion, arrivals_);
        if (nothingComesBetween()) {
            commitPlainRun();
            i = end;
        } else {
            i = commitRun(i, end, problem);
        }
    }
    walls_.end();
    if (!problem.empty()) return problem;
    if (barriers_.empty() && lastFree > 0) reportDistance(nodeAt(ed, lastFree));
    return walls_.touched() ? checkVelocities() : std::string();
}

// Fills the run with free nodes; gives the node behind it.
std::int32_t NodeStage::gatherRun(std::int32_t from) {
    const std::int32_t last = lastNode(ed);
    Node* const nodes = ed.Nodes.data();
    const ForcePoint* const points = points_.data();
    run_.plain = !attracts_;
    std::size_t m = 0;
    std::int32_t i = from;
    while (i <= last && m < NodeRun::size) {
        const std::int32_t here = i++;
        Node& node = nodes[here];
        prefetchAhead(node);
        if (!node.Used || node.Locked) [[unlikely]] {
            if (hold(here, node) != nullptr) run_.plain = false;
            continue;
        }
        if (walls_.owes(here)) walls_.settle(here);
        run_.node[m] = &node;
        store(&run_.place[2 * m], placeOf(node));
        store(&run_.velocity[2 * m], velocityOf(node));
        store(&run_.force[2 * m], points[here].force);
        store(&run_.mass[2 * m], Float2{node.Mass, node.Mass});
        ++m;
        if (node.Gravity != 0) [[unlikely]]
            break;
    }
    run_.count = m;
    return i;
}

void NodeStage::attract() {
    static_assert(NodeRun::size <= NodeLanes::size);
    NodeLanes lanes;
    lanes.count = run_.count;
    for (std::size_t m = 0; m < run_.count; ++m) {
        const std::size_t x = 2 * m, y = x + 1;
        lanes.x.place[m] = run_.place[x];
        lanes.y.place[m] = run_.place[y];
        lanes.x.force[m] = run_.force[x];
        lanes.y.force[m] = run_.force[y];
    }
    attraction_.pull(lanes);
    for (std::size_t m = 0; m < run_.count; ++m) {
        run_.force[2 * m] = lanes.x.force[m];
        run_.force[2 * m + 1] = lanes.y.force[m];
    }
}

// Whether the arrivals are all there is to do for the nodes of this run.
bool NodeStage::nothingComesBetween() const {
    const bool plotting = ed.marks.mnuDisplayPath && selectedNode(ed) != nullptr;
    return run_.plain && arrivals_.clear && barriers_.empty() && !recolour_ && !plotting;
}

void NodeStage::commitPlainRun() const {
    for (std::size_t m = 0; m < run_.count; ++m) {
        Node& node = *run_.node[m];
        const double* const place = &arrivals_.place[2 * m];
        const float* const velocity = &arrivals_.velocity[2 * m];
        node.X = nearestInt(place[0]);
        node.Y = nearestInt(place[1]);
        node.Vx = velocity[0];
        node.Vy = velocity[1];
        node.Fx = node.Fy = 0;
    }
}

// Hands a run's arrivals to its nodes, up to the first that a wall contact has given another way; gives the
// node to go on with.
std::int32_t NodeStage::commitRun(std::int32_t from, std::int32_t to, std::string& problem) {
    std::size_t lane = 0;
    for (std::int32_t i = from; i < to; ++i) {
        Node& node = nodeAt(ed, i);
        const bool free = node.Used && !node.Locked;
        if (free && walls_.owes(i)) return i;
        if (node.Used && recolour_) node.color = GetRandomColor(ed.chance);
        const char* reason = free ? move(i, node, lane++) : hold(i, node);
        if (reason != nullptr) {
            problem = problemText(i, reason);
            return to;
        }
        if (std::exchange(attractorMoved_, false)) return i + 1;
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
    const double* const place = &arrivals_.place[2 * lane];
    node.Vx = arrivals_.velocity[2 * lane];
    node.Vy = arrivals_.velocity[2 * lane + 1];
    if (!inTheWorld(place[0], place[1])) return isFinite(node) ? leftTheWorld : notFinite;
    node.X = nearestInt(place[0]);
    node.Y = nearestInt(place[1]);
    node.Fx = 0;
    node.Fy = 0;
    const char* problem = nullptr;
    if (!barriers_.empty() || bounds_.touchedBy(node)) problem = meetContacts(i, node);
    if (node.Gravity != 0) attraction_.update(i, node);
    if (i == ed.SelectedNode && ed.marks.mnuDisplayPath)
        report_.dot = PathDot{toInt(node.X / 2.0), toInt(node.Y / 2.0), node.color};
    return problem;
}

const char* NodeStage::meetContacts(std::int32_t i, Node& node) {
    floorAndCeiling(ed, i, bounds_);
    if (!node.Used) report_.anyRemoved = true;
    if (ed.marks.mnuWalls) meetWalls(i);
    if (!barriers_.empty()) meetBarriers(i, node);
    return isFinite(node) ? nullptr : notFinite;
}

void NodeStage::meetWalls(std::int32_t i) {
    walls_.meet(i);
    for (const std::int32_t moved : walls_.takeMoved()) {
        barriers_.nodeMoved(ed, moved);
        attraction_.update(moved, nodeAt(ed, moved));
        attractorMoved_ = attracts_;
    }
}

void NodeStage::meetBarriers(std::int32_t i, Node& node) {
    barriers_.nodeMoved(ed, i);
    if (i < lastFree_)
        barriers_.deflect(ed, i);
    else
        reportDistance(node);
    walls_.nodeDeflected(i);
}

// The last node's test is the one that counts; one that was cut short leaves the former.
void NodeStage::reportDistance(Node& node) {
    if (ed.marks.mnuIgnoreBarriers) return;
    if (const auto distance = barriers_.BarrierTest(ed, node)) report_.distance = distance;
}

// A wall contact scales the velocities of nodes that were looked at already.
std::string NodeStage::checkVelocities() const {
    for (std::int32_t i = 1; i <= lastNode(ed); ++i)
        if (nodeAt(ed, i).Used && !isFinite(nodeAt(ed, i))) return problemText(i, notFinite);
    return {};
}

}  // namespace zentrik
