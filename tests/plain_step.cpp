#include "plain_step.h"

#include "basics/numbers.h"
#include "model/redraw.h"
#include "model/store.h"

#include <cmath>
#include <deque>

namespace zentrik::plain {

namespace {

// A stored quantity: an expression in double precision, rounded.
float f32(double value) { return static_cast<float>(value); }
double f64(float value) { return static_cast<double>(value); }

void add(float& sum, double value) { sum = f32(f64(sum) + value); }

void initialVelocities(Editor& ed) {
    if (ed.AnimationTime != 0 || !ed.InitialVelocityPending) return;
    ed.InitialVelocityPending = false;
    for (Node& n : ed.Nodes) {
        if (!n.Used) continue;
        if (!ed.marks.mnuUseDirectional) {
            n.Vx = f32(f64(n.Vxo) * 1000);
            n.Vy = f32(f64(n.Vyo) * 1000);
            continue;
        }
        const std::int32_t a = toInt(f64(n.Vxo));
        const double V = f64(f32(f64(n.Vyo) * 1000));
        const double r = f64(f32(a * 0.01745));
        const double vx = std::fabs(std::cos(r)) * V;
        const double vy = std::fabs(std::sin(r)) * V;
        if (a < 90) {
            n.Vx = f32(vx), n.Vy = f32(-vy);
        } else if (a < 180) {
            n.Vx = f32(-vx), n.Vy = f32(-vy);
        } else if (a < 270) {
            n.Vx = f32(-vx), n.Vy = f32(vy);
        } else if (a < 360) {
            n.Vx = f32(vx), n.Vy = f32(vy);
        }
    }
}

void drive(Node& n1, Node& n2) {
    const double S = 1000, R1 = f64(n1.Rotate), R2 = f64(n2.Rotate);
    const float dx = f32(static_cast<double>(n1.X) - n2.X);
    const float dy = f32(static_cast<double>(n1.Y) - n2.Y);
    if (std::fabs(dx) < 50) {
        if (dy < 0) {
            add(n1.Fx, R2 * S);
            add(n2.Fx, -(R1 * S));
        } else {
            add(n1.Fx, -(R2 * S));
            add(n2.Fx, R1 * S);
        }
    } else if (std::fabs(dy) < 50) {
        if (dx < 0) {
            add(n1.Fy, -(R2 * S));
            add(n2.Fy, R1 * S);
        } else {
            add(n1.Fy, R2 * S);
            add(n2.Fy, -(R1 * S));
        }
    } else {
        const double theta = f64(f32(std::atan(std::fabs(f64(dy) / f64(dx)))));
        const double c = f64(f32(std::cos(theta)));
        const double s = f64(f32(std::sin(theta)));
        if (dx < 0 && dy < 0) {
            add(n1.Fx, R2 * c * S);
            add(n1.Fy, -(R2 * s * S));
            add(n2.Fx, -(R1 * c * S));
            add(n2.Fy, R1 * s * S);
        } else if (dx < 0) {
            add(n1.Fx, -(R2 * c * S));
            add(n1.Fy, -(R2 * s * S));
            add(n2.Fx, R1 * c * S);
            add(n2.Fy, R1 * s * S);
        } else if (dy < 0) {
            add(n1.Fx, R2 * c * S);
            add(n1.Fy, R2 * s * S);
            add(n2.Fx, -(R1 * c * S));
            add(n2.Fy, -(R1 * s * S));
        } else {
            add(n1.Fx, R2 * c * S);
            add(n1.Fy, R2 * s * S);
            add(n2.Fx, R1 * c * S);
            add(n2.Fy, -(R1 * s * S));
        }
    }
}

void spring(const Editor& ed, Link& link, Node& n1, Node& n2) {
    const double dx = f64(f32(static_cast<double>(n1.X) - n2.X));
    const double dy = f64(f32(static_cast<double>(n1.Y) - n2.Y));
    link.CurrentLength = f32(std::sqrt(dx * dx + dy * dy));
    const float p = std::fabs(f32(f64(ed.DeltaAngle) * f64(ed.AnimationTime)));
    const float q = f32(f64(link.Angle) * 0.01745);
    float f = 1;
    if (link.Animator && ed.buttons.animation && q < p)
        f = f32(f64(link.Force) *
                    std::sin(f64(ed.DeltaAngle) * f64(ed.AnimationTime) - f64(link.Angle) * 0.01745) +
                1);
    const float F = f32((f64(link.CurrentLength) - f64(f) * f64(link.RestLength)) * f64(link.k) * 100);
    double fx = 0, fy = 0;
    if (F != 0 && link.CurrentLength != 0) {
        fx = f64(f32(std::fabs(dx / f64(link.CurrentLength) * f64(F))));
        fy = f64(f32(std::fabs(dy / f64(link.CurrentLength) * f64(F))));
    }
    const bool leftwards = (F >= 0) == (dx > 0);  // the way in which N1 is pulled or pushed
    const bool upwards = (F >= 0) == (dy > 0);
    add(n1.Fx, leftwards ? -fx : fx);
    add(n2.Fx, leftwards ? fx : -fx);
    add(n1.Fy, upwards ? -fy : fy);
    add(n2.Fy, upwards ? fy : -fy);
}

void attract(const Editor& ed, std::int32_t i, Node& n) {
    for (std::int32_t j = 1; j <= lastNode(ed); ++j) {
        const Node& other = nodeAt(ed, j);
        if (j == i || !other.Used || other.Gravity == 0) continue;
        const double dx = f64(f32(static_cast<double>(n.X) - other.X));
        const double dy = f64(f32(static_cast<double>(n.Y) - other.Y));
        const double d = f64(f32(std::sqrt(dx * dx + dy * dy)));
        if (d == 0) continue;
        const double square = (d / 10000) * (d / 10000);
        const float ax = f32(dx / d * f64(other.Gravity) / square);
        const float ay = f32(dy / d * f64(other.Gravity) / square);
        add(n.Fx, -(f64(ax) * 10));
        add(n.Fy, -(f64(ay) * 10));
    }
}

// False when the node's new place is no 32-bit place.
bool integrate(const Editor& ed, Node& n, double dt) {
    const double mass = f64(n.Mass), viscosity = f64(ed.Viscosity);
    const double g = f64(f32(f64(ed.Gravity) * 10000));
    n.Fx = f32(f64(n.Fx) - viscosity * f64(n.Vx) * 10 + f64(ed.LeftWind) * 1000);
    n.Fy = f32(f64(n.Fy) - f64(n.Vy) * viscosity * 10);
    n.Vx = f32(f64(n.Fx) / mass * dt + f64(n.Vx));
    n.Vy = f32((f64(n.Fy) / mass + g) * dt + f64(n.Vy));
    const double x = dt * dt * (f64(n.Fx) * 0.5 / mass) + dt * f64(n.Vx) + n.X;
    const double y = dt * dt * (f64(n.Fy) * 0.5 / mass) + dt * f64(n.Vy) + n.Y;
    if (!(std::fabs(x) <= 2147483647.0 && std::fabs(y) <= 2147483647.0)) return false;
    n.X = static_cast<std::int32_t>(std::nearbyint(x));
    n.Y = static_cast<std::int32_t>(std::nearbyint(y));
    return true;
}

void bounce(const Editor& ed, Node& n, std::int32_t line) {
    n.Y = line;
    n.Vy = f32(-f64(n.Vy) * f64(ed.Bounce));
    n.Vx = f32(f64(n.Vx) * (1 - f64(ed.Friction)));
}

void turn(const Editor& ed, Node& n) {
    n.Vx = -n.Vx;
    n.Vy = f32(f64(n.Vy) * (1 - f64(ed.Friction)));
    n.Rotate = -n.Rotate;
}

// side: -1 for the left wall, +1 for the right one. True on contact.
bool wall(Editor& ed, std::int32_t i, int side, double line) {
    const auto beyond = [&](const Node& n) { return side < 0 ? n.X <= line : n.X >= line; };
    if (!beyond(nodeAt(ed, i))) return false;
    if (ed.marks.mnuReverseModel) {
        nodeAt(ed, i).X = toInt(line);
        for (Node& n : ed.Nodes)
            if (n.Used) turn(ed, n);
        return true;
    }
    markConnected(ed, i);
    for (Node& n : ed.Nodes) {
        if (!n.Used || !n.Marked || !beyond(n)) continue;
        n.X = toInt(line);
        turn(ed, n);
    }
    return true;
}

void barrierTest(Editor& ed, Node& n) {
    const double r = ed.NodeRadius, bounciness = f64(ed.Bounce);
    float d = 0;
    for (std::int32_t j = 1; j <= lastLink(ed); ++j) {
        const Link& link = linkAt(ed, j);
        if (!link.Used || !link.Barrier || !endsExist(ed, link)) continue;
        const double L = f64(link.CurrentLength);
        if (L < 1) return;
        const double x1 = nodeAt(ed, link.N1).X, y1 = nodeAt(ed, link.N1).Y;
        const double x2 = nodeAt(ed, link.N2).X, y2 = nodeAt(ed, link.N2).Y;
        const double u = f64(f32(((n.Y - y1) * (y2 - y1) + (n.X - x1) * (x2 - x1)) / (L * L)));
        if (!(u > 0 && u < 1)) continue;
        const double cx = f64(f32(x1 + u * (x2 - x1))), cy = f64(f32(y1 + u * (y2 - y1)));
        d = f32(std::sqrt((cy - n.Y) * (cy - n.Y) + (cx - n.X) * (cx - n.X)));
        if (f64(d) > r) continue;
        if (y1 == y2) {
            n.Y = toInt(n.Vy <= 0 ? y1 + r : y1 - r);
            n.Vy = f32(-f64(n.Vy) * bounciness);
            n.Vx = f32(f64(n.Vx) * bounciness);
        } else if (x1 == x2) {
            n.X = toInt(n.Vx <= 0 ? x1 + r : x1 - r);
            n.Vy = f32(f64(n.Vy) * bounciness);
            n.Vx = f32(-f64(n.Vx) * bounciness);
        }
    }
    panel(ed, 5) = realText(d);
}

// Moves one node; gives what went wrong, or the empty text.
std::string moveNode(Editor& ed, std::int32_t i, double dt, bool& touched) {
    Node& n = nodeAt(ed, i);
    const std::string notFinite = "holds a value that is not finite";
    if (ed.marks.mnuRandom && ed.Cycles % 10 == 0) n.color = GetRandomColor(ed.chance);
    if (n.Locked) return std::isfinite(f64(n.Fx) + f64(n.Fy)) ? "" : notFinite;
    attract(ed, i, n);
    if (!integrate(ed, n, dt)) return std::isfinite(f64(n.Vx) + f64(n.Vy)) ? "has left the world" : notFinite;
    const double r = ed.NodeRadius;
    const double floor = ed.sceneHeight - r - 45, right = ed.sceneWidth - r - 45;
    if (n.Y >= floor) {
        bounce(ed, n, toInt(floor));
        if (ed.timerFireWorks.enabled && !ed.marks.mnuPersistentFireworks) {
            n.Used = false;
            if (ed.SelectedNode == i) ed.SelectedNode = none;
        }
    }
    if (ed.marks.mnuCeiling && n.Y <= r) bounce(ed, n, ed.NodeRadius);
    if (ed.marks.mnuWalls) touched |= wall(ed, i, -1, r);
    if (ed.marks.mnuWalls) touched |= wall(ed, i, +1, right);
    if (!ed.marks.mnuIgnoreBarriers) barrierTest(ed, n);
    n.Fx = n.Fy = 0;
    if (ed.marks.mnuDisplayPath && i == ed.SelectedNode)
        ed.pathDots.push_back({toInt(n.X / 2.0), toInt(n.Y / 2.0), n.color});
    return std::isfinite(f64(n.Vx) + f64(n.Vy)) ? "" : notFinite;
}

void stop(Editor& ed, const std::string& problem) {
    ed.buttons.start = false;
    ed.Timer1.enabled = false;
    ed.tips.start = "Start";
    panel(ed, 5) = problem + ": animation stopped!";
    redrawScene(ed);
}

void putNodesBack(Editor& ed, const std::vector<Node>& before) {
    for (std::size_t i = 0; i < before.size(); ++i) {
        const std::int32_t color = ed.Nodes[i].color;
        const bool mark = ed.Nodes[i].Marked;
        ed.Nodes[i] = before[i];
        ed.Nodes[i].color = color;
        ed.Nodes[i].Marked = mark;
    }
}

std::string numbered(std::int32_t i, const std::string& what) {
    return "Node " + std::to_string(i) + " " + what;
}

}  // namespace

void step(Editor& ed) {
    for (std::int32_t i = 1; i <= lastNode(ed); ++i) {
        const Node& n = nodeAt(ed, i);
        if (n.Used && !n.Locked && n.Mass == 0) return stop(ed, numbered(i, "has a mass of 0"));
    }
    const Editor before = ed;
    const double dt = ed.buttons.slow ? f64(0.005F) : f64(f32(f64(ed.TimeInterval) / 1000));
    initialVelocities(ed);
    ed.AnimationTime = f32(f64(ed.AnimationTime) + dt * ed.TimeDirection);
    if (ed.marks.mnuDisplayAngleManager && toInt(f64(ed.AnimationTime) / dt) % 100 != 0)
        DrawPhaseManager(ed, ed.AnimationTime);
    showClock(ed);
    forEachLink(ed, [&](std::int32_t, const Link& link) { drive(nodeAt(ed, link.N1), nodeAt(ed, link.N2)); });
    forEachLink(
        ed, [&](std::int32_t, Link& link) { spring(ed, link, nodeAt(ed, link.N1), nodeAt(ed, link.N2)); });
    std::string problem;
    bool touched = false;
    for (std::int32_t i = 1; i <= lastNode(ed) && problem.empty(); ++i) {
        if (!nodeAt(ed, i).Used) continue;
        problem = moveNode(ed, i, dt, touched);
        if (!problem.empty()) problem = numbered(i, problem);
    }
    // A wall contact may have scaled a velocity that was looked at already.
    for (std::int32_t i = 1; i <= lastNode(ed) && problem.empty(); ++i) {
        const Node& n = nodeAt(ed, i);
        if (n.Used && !std::isfinite(f64(n.Vx) + f64(n.Vy)))
            problem = numbered(i, "holds a value that is not finite");
    }
    if (problem.empty() && !std::isfinite(ed.AnimationTime)) problem = "The clock is not finite";
    if (!problem.empty()) {
        putNodesBack(ed, before.Nodes);
        ed.AnimationTime = before.AnimationTime;
        ed.InitialVelocityPending = before.InitialVelocityPending;
        ed.SelectedNode = before.SelectedNode;
        return stop(ed, problem);
    }
    if (UsedNodes(ed) != UsedNodes(before)) showCounts(ed);
    redrawScene(ed);
    if (touched) ed.TimeDirection = -ed.TimeDirection;
}

void markConnected(Editor& ed, std::int32_t start) {
    for (Node& n : ed.Nodes) n.Marked = false;
    for (Link& link : ed.Links) link.Marked = false;
    nodeAt(ed, start).Marked = true;
    std::deque<std::int32_t> queue{start};
    for (; !queue.empty(); queue.pop_front()) {
        const std::int32_t h = queue.front();
        forEachLink(ed, [&](std::int32_t, Link& link) {
            if (link.N1 != h && link.N2 != h) return;
            const std::int32_t other = link.N1 == h ? link.N2 : link.N1;
            link.Marked = true;
            if (nodeAt(ed, other).Marked) return;
            nodeAt(ed, other).Marked = true;
            queue.push_back(other);
        });
    }
}

}  // namespace zentrik::plain
