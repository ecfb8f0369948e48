#include "sim/step.h"

#include "basics/angles.h"
#include "basics/numbers.h"
#include "model/shooter_aim.h"
#include "model/store.h"
#include "sim/node_stage.h"

#include <cmath>

namespace zentrik {

namespace {

// What a step may change of a node, kept until it is known to have worked.
struct NodeState {
    Int2 place;
    Float2 velocity, force;
    float Rotate;
    bool Used;
};

// Memory that every step fills anew; it is kept only to spare the thread's next step its allocation.
struct Scratch {
    std::vector<NodeState> before;
    ForcePoints points;
    Attraction attraction;
    std::vector<std::int32_t> barrierLinks;
    Barriers barriers;
    Walls walls;
};

Scratch& scratch() {
    thread_local Scratch memory;
    return memory;
}

// What must be known of the nodes before the forces.
struct Survey {
    bool anyRotate = false, anyAim = false;
    bool placesAreSmall = true;  // the difference of any two coordinates is exact as a 32-bit real
    std::int32_t lastFree = 0;   // the last node that the step will move
    std::int32_t massless = 0;   // the first node that cannot be moved
};

Survey survey(const Editor& ed, Scratch& work) {
    Survey result;
    work.attraction.clear();
    work.before.resize(ed.Nodes.size());
    work.points.resize(ed.Nodes.size());
    const Node* const nodes = ed.Nodes.data();
    NodeState* const before = work.before.data();
    ForcePoint* const points = work.points.data();
    const std::int32_t last = lastNode(ed);
    PlaceSpread spread;
    for (std::int32_t i = 0; i <= last; ++i) {
        const Node& n = nodes[i];
        before[i] = {placeOf(n), velocityOf(n), forceOf(n), n.Rotate, n.Used};
        points[i] = {round32(placeOf(n)), forceOf(n)};
        spread.add(n.X, n.Y);
        // A node's drive acts over used links whether the node itself is used or not.
        if (n.Rotate != 0) result.anyRotate = true;
        if (!n.Used) continue;
        if (n.Gravity != 0) work.attraction.add(i, n);
        if (takesAim(n)) result.anyAim = true;
        if (n.Locked) continue;
        result.lastFree = i;
        if (n.Mass == 0 && result.massless == 0) result.massless = i;
    }
    result.placesAreSmall = spread.isSmall();
    return result;
}

void putBack(Editor& ed, const std::vector<NodeState>& before) {
    for (std::size_t i = 0; i < before.size(); ++i) {
        Node& n = ed.Nodes[i];
        const NodeState& s = before[i];
        n.X = s.place[0], n.Y = s.place[1];
        n.Vx = s.velocity[0], n.Vy = s.velocity[1];
        n.Fx = s.force[0], n.Fy = s.force[1];
        n.Rotate = s.Rotate, n.Used = s.Used;
    }
}

void setDirectionalVelocity(Node& node) {
    const std::int32_t a = toInt(wide(node.Vxo));
    const float V = real(node.Vyo * 1000.0);
    const float r = real(a * degreesToRadians);
    const double across = std::fabs(std::cos(wide(r))) * V;
    const double along = std::fabs(std::sin(wide(r))) * V;
    if (a >= 360) return;
    node.Vx = real(a < 90 || a >= 270 ? across : -across);
    node.Vy = real(a < 180 ? -along : along);
}

// True when this was the step that they waited for.
bool applyInitialVelocities(Editor& ed) {
    if (ed.AnimationTime != 0 || !ed.InitialVelocityPending) return false;
    ed.InitialVelocityPending = false;
    forEachNode(ed, [&](std::int32_t, Node& node) {
        if (ed.marks.mnuUseDirectional) {
            setDirectionalVelocity(node);
        } else {
            node.Vx = real(node.Vxo * 1000.0);
            node.Vy = real(node.Vyo * 1000.0);
        }
    });
    return true;
}

// The window cannot answer during a step, so one that would take this long is not begun.
constexpr double longestStep = 5;  // seconds

std::string durationText(double seconds) {
    const bool minutes = seconds >= 120;
    return std::to_string(toInt(minutes ? seconds / 60 : seconds)) + (minutes ? " minutes" : " seconds");
}

std::string whyNotBegun(const Editor& ed, const Survey& found, const Attraction& attraction) {
    if (found.massless != 0) return "Node " + std::to_string(found.massless) + " has a mass of 0";
    const double seconds = attraction.expectedTime(ed);
    if (seconds <= longestStep) return {};
    return "So many nodes attract each other that a step would take about " + durationText(seconds);
}

// Forces, then places. Gives what went wrong, or the empty text.
std::string moveAll(Editor& ed, Scratch& work, const Survey& found, StepReport& report) {
    const float dt = stepSize(ed);
    const bool started = applyInitialVelocities(ed);
    ed.AnimationTime = real(ed.AnimationTime + wide(dt) * ed.TimeDirection);
    report.clock = ed.AnimationTime;
    if (found.anyRotate) applyRotationalDrive(ed, work.points);
    work.barrierLinks.clear();
    applySprings(ed, work.points, found.placesAreSmall, work.barrierLinks);
    work.barriers.clear();
    if (!ed.marks.mnuIgnoreBarriers) work.barriers.set(ed, work.barrierLinks);
    NodeStage nodes(ed, work.points, work.attraction, work.barriers, work.walls, report);
    std::string problem = nodes.run(dt, found.lastFree);
    if (problem.empty() && started) problem = nodes.checkVelocities();  // of locked nodes, too
    return problem.empty() && !std::isfinite(ed.AnimationTime) ? "The clock is not finite" : problem;
}

}  // namespace

float stepSize(const Editor& ed) { return ed.buttons.slow ? 0.005F : real(ed.TimeInterval / 1000.0); }

StepReport advance(Editor& ed) {
    StepReport report;
    Scratch& work = scratch();
    const Survey found = survey(ed, work);
    report.problem = whyNotBegun(ed, found, work.attraction);
    if (!report.problem.empty()) return report;

    const float time = ed.AnimationTime;
    const bool pending = ed.InitialVelocityPending;
    const std::int32_t selected = ed.SelectedNode;
    report.problem = moveAll(ed, work, found, report);
    if (!report.problem.empty()) {
        putBack(ed, work.before);
        ed.AnimationTime = time;
        ed.InitialVelocityPending = pending;
        ed.SelectedNode = selected;
        return report;
    }
    if (found.anyAim && ed.buttons.ball) lockTriggers(ed);
    if (work.walls.touched()) ed.TimeDirection = -ed.TimeDirection;
    return report;
}

}  // namespace zentrik
