#include "sim/step.h"

#include "model/numbers.h"
#include "model/redraw.h"
#include "model/store.h"
#include "sim/contacts.h"
#include "sim/forces.h"
#include "sim/run.h"

#include <cmath>
#include <limits>

namespace zentrik {

namespace {

// What a step may change of a node, kept until it is known to have worked.
struct NodeState {
    std::int32_t X, Y;
    float Vx, Vy, Fx, Fy, Rotate;
    bool Used;
};

// Memory that every step fills anew; it is kept only to spare the next step its allocation.
struct Scratch {
    std::vector<NodeState> before;
    ForcePoints points;
    Attraction attraction;
    std::vector<std::int32_t> barrierLinks;
    Barriers barriers;
};

Scratch& scratch() {
    static Scratch memory;
    return memory;
}

// What must be known of the nodes before the forces.
struct Survey {
    bool anyRotate = false;
    std::int32_t lastFree = 0;  // the last node that the step will move
    std::int32_t massless = 0;  // the first node that cannot be moved
};

Survey survey(const Editor& ed, Scratch& work) {
    Survey result;
    work.attraction.clear();
    work.before.resize(ed.Nodes.size());
    work.points.resize(ed.Nodes.size());
    for (std::int32_t i = 0; i <= lastNode(ed); ++i) {
        const Node& n = nodeAt(ed, i);
        work.before[static_cast<std::size_t>(i)] = {n.X, n.Y, n.Vx, n.Vy, n.Fx, n.Fy, n.Rotate, n.Used};
        work.points[static_cast<std::size_t>(i)] = {Int2{n.X, n.Y}, Float2{n.Fx, n.Fy}};
        // A node's drive acts over used links whether the node itself is used or not.
        result.anyRotate |= n.Rotate != 0;
        if (!n.Used) continue;
        if (n.Gravity != 0) work.attraction.add(i, n);
        if (n.Locked) continue;
        result.lastFree = i;
        if (n.Mass == 0 && result.massless == 0) result.massless = i;
    }
    return result;
}

void putBack(Editor& ed, const std::vector<NodeState>& before) {
    for (std::size_t i = 0; i < before.size(); ++i) {
        Node& n = ed.Nodes[i];
        const NodeState& s = before[i];
        n.X = s.X, n.Y = s.Y, n.Vx = s.Vx, n.Vy = s.Vy, n.Fx = s.Fx, n.Fy = s.Fy;
        n.Rotate = s.Rotate, n.Used = s.Used;
    }
}

void setDirectionalVelocity(Node& node) {
    const std::int32_t a = toInt(wide(node.Vxo));
    const float V = real(node.Vyo * 1000.0);
    const float r = real(a * 0.01745);
    const double across = std::fabs(std::cos(wide(r))) * V;
    const double along = std::fabs(std::sin(wide(r))) * V;
    if (a >= 360) return;
    node.Vx = real(a < 90 || a >= 270 ? across : -across);
    node.Vy = real(a < 180 ? -along : along);
}

void applyInitialVelocities(Editor& ed) {
    if (ed.AnimationTime != 0 || !ed.InitialVelocityPending) return;
    ed.InitialVelocityPending = false;
    forEachNode(ed, [&](std::int32_t, Node& node) {
        if (ed.marks.mnuUseDirectional) {
            setDirectionalVelocity(node);
        } else {
            node.Vx = real(node.Vxo * 1000.0);
            node.Vy = real(node.Vyo * 1000.0);
        }
    });
}

void advanceClock(Editor& ed, float dt) {
    ed.AnimationTime = real(ed.AnimationTime + wide(dt) * ed.TimeDirection);
    // Left out once in a hundred steps.
    if (toInt(wide(ed.AnimationTime) / dt) % 100 != 0)
        redrawPhaseManager(ed, real(wide(ed.DeltaAngle) * ed.AnimationTime));
    showClock(ed);
}

// What the integration of every node shares.
struct Integration {
    double dt;
    Double2 wind, gravity;
    double viscosity;
};

Integration integrationOf(const Editor& ed, float dt) {
    const float g = real(ed.Gravity * 10000.0);
    return {dt, Double2{ed.LeftWind * 1000.0, 0}, Double2{0, g}, wide(ed.Viscosity)};
}

// Drag and wind, velocity, position. False when the position leaves the 32-bit range or is not finite.
bool integrate(Node& node, Float2 force, const Integration& in) {
    force = round32(wide(force) - in.viscosity * wide(Float2{node.Vx, node.Vy}) * 10.0 + in.wind);
    const double mass = node.Mass;
    const Float2 velocity =
        round32((wide(force) / mass + in.gravity) * in.dt + wide(Float2{node.Vx, node.Vy}));
    const Double2 place =
        in.dt * in.dt * (wide(force) * 0.5 / mass) + in.dt * wide(velocity) + wide(Int2{node.X, node.Y});
    node.Vx = velocity[0];
    node.Vy = velocity[1];
    constexpr double farthest = std::numeric_limits<std::int32_t>::max();
    if (!(std::fabs(place[0]) <= farthest && std::fabs(place[1]) <= farthest)) return false;
    node.X = toInt(place[0]);
    node.Y = toInt(place[1]);
    return true;
}

std::string nodeText(std::int32_t i) { return "Node " + std::to_string(i) + " "; }

class NodeStage {
public:
    NodeStage(Editor& editor, Scratch& memory, std::int32_t lastFree)
        : ed(editor), work(memory), last_(lastFree), bounds_(boundsOf(editor)) {
        work.barriers.clear();
        if (!ed.marks.mnuIgnoreBarriers && !work.barrierLinks.empty())
            work.barriers.set(ed, work.barrierLinks);
        testBarriers_ = !ed.marks.mnuIgnoreBarriers;
        attracts_ = !work.attraction.empty();
    }

    // Moves every free node; gives what went wrong, or the empty text.
    std::string run(float dt) {
        const Integration integration = integrationOf(ed, dt);
        const bool recolour = ed.marks.mnuRandom && ed.Cycles % 10 == 0;
        for (std::int32_t i = 1; i <= lastNode(ed); ++i) {
            Node& node = nodeAt(ed, i);
            const Float2 force = work.points[static_cast<std::size_t>(i)].force;
            if (node.Used && recolour) node.color = GetRandomColor(ed.chance);
            if (!node.Used || node.Locked) {
                node.Fx = force[0];
                node.Fy = force[1];
                if (node.Used && !std::isfinite(wide(node.Fx) + node.Fy)) return nodeText(i) + notFinite;
            } else if (!move(i, node, force, integration)) {
                return nodeText(i) + (std::isfinite(wide(node.Vx) + node.Vy) ? leftTheWorld : notFinite);
            }
        }
        if (contacts_.touched) return checkAll();
        return {};
    }

    bool wallTouched() const { return contacts_.touched; }

private:
    Editor& ed;
    Scratch& work;
    std::int32_t last_;
    Bounds bounds_;
    WallContacts contacts_;
    bool testBarriers_ = false, attracts_ = false;

    static constexpr const char* notFinite = "holds a value that is not finite";
    static constexpr const char* leftTheWorld = "has left the world";

    // A wall contact scales the velocities of nodes that the loop has passed already.
    std::string checkAll() const {
        for (std::int32_t i = 1; i <= lastNode(ed); ++i)
            if (nodeAt(ed, i).Used && !std::isfinite(wide(nodeAt(ed, i).Vx) + nodeAt(ed, i).Vy))
                return nodeText(i) + notFinite;
        return {};
    }

    // One free node. False when it cannot be moved.
    bool move(std::int32_t i, Node& node, Float2 force, const Integration& integration) {
        if (attracts_) work.attraction.pull(Int2{node.X, node.Y}, force);
        if (!integrate(node, force, integration)) return false;
        if (bounds_.touchedBy(node)) {
            floorAndCeiling(ed, i, bounds_);
            if (ed.marks.mnuWalls) walls(ed, i, bounds_, contacts_);
        }
        if (testBarriers_) meetBarriers(i, node);
        node.Fx = 0;
        node.Fy = 0;
        if (attracts_) work.attraction.update(i, node);
        if (!work.barriers.empty()) work.barriers.nodeMoved(ed, i);
        if (contacts_.movedOthers) takeOverMoves();
        if (ed.marks.mnuDisplayPath && i == ed.SelectedNode)
            ed.pathDots.push_back({toInt(node.X / 2.0), toInt(node.Y / 2.0), node.color});
        return std::isfinite(wide(node.Vx) + node.Vy);
    }

    // Status panel 5 shows what the last node's test found; the other nodes' are overwritten unseen.
    void meetBarriers(std::int32_t i, Node& node) {
        if (contacts_.movedOthers) takeOverMoves();
        if (i < last_) {
            if (!work.barriers.empty()) work.barriers.nodeMoved(ed, i);
            work.barriers.deflect(ed, i);
        } else if (const auto distance = work.barriers.BarrierTest(ed, node)) {
            panel(ed, 5) = realText(*distance);
        }
    }

    void takeOverMoves() {
        contacts_.movedOthers = false;
        work.attraction.updateAll(ed);
        work.barriers.update(ed);
    }
};

void stopWith(Editor& ed, const std::string& problem) {
    ed.buttons.start = false;
    StartStop(ed);
    panel(ed, 5) = problem + ": animation stopped!";
    showClock(ed);
    DisplayScene(ed, -1, -1);
}

}  // namespace

float stepSize(const Editor& ed) { return ed.buttons.slow ? 0.005F : real(ed.TimeInterval / 1000.0); }

void CalculatePositions(Editor& ed) {
    Scratch& work = scratch();
    const float dt = stepSize(ed);
    const Survey found = survey(ed, work);
    if (found.massless != 0) return stopWith(ed, nodeText(found.massless) + "has a mass of 0");

    const float time = ed.AnimationTime;
    const bool pending = ed.InitialVelocityPending;
    const std::int32_t selected = ed.SelectedNode;
    applyInitialVelocities(ed);
    advanceClock(ed, dt);
    if (found.anyRotate) applyRotationalDrive(ed, work.points);
    work.barrierLinks.clear();
    applySprings(ed, work.points, work.barrierLinks);
    NodeStage nodes(ed, work, found.lastFree);
    std::string problem = nodes.run(dt);
    if (problem.empty() && !std::isfinite(ed.AnimationTime)) problem = "The clock is not finite";
    if (!problem.empty()) {
        putBack(ed, work.before);
        ed.AnimationTime = time;
        ed.InitialVelocityPending = pending;
        ed.SelectedNode = selected;
        return stopWith(ed, problem);
    }
    DisplayScene(ed, -1, -1);
    if (nodes.wallTouched()) ed.TimeDirection = -ed.TimeDirection;
}

}  // namespace zentrik
