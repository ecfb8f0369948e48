#include "sim/attraction.h"

#include "model/store.h"
#include "sim/contacts/pair.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace zentrik {

namespace {

using Attractor = Attraction::Attractor;

// From an attracting node to the nodes in the lanes. Each quantity has its own short loop: the processor
// looks ahead only so far, and rounds of a short loop overlap better.
struct Pulls {
    NodeLanes::Column<double> dx, dy, distance, strength;
    NodeLanes::Column<float> x, y;
};

ZENTRIK_WIDE_LOOP void subtract(const Attractor& a, const NodeLanes& lanes, Pulls& pulls) {
    for (std::size_t m = 0; m < lanes.count; ++m) {
        pulls.dx[m] = wide(real(lanes.x.place[m] - a.x));
        pulls.dy[m] = wide(real(lanes.y.place[m] - a.y));
    }
}

ZENTRIK_WIDE_LOOP void measure(std::size_t count, Pulls& pulls) {
    for (std::size_t m = 0; m < count; ++m)
        pulls.distance[m] = wide(real(std::sqrt(pulls.dx[m] * pulls.dx[m] + pulls.dy[m] * pulls.dy[m])));
}

// The formula itself: g / (d / 10000)^2 along the line to the attracting node.
ZENTRIK_WIDE_LOOP void findPulls(const Attractor& a, std::size_t count, Pulls& pulls) {
    for (std::size_t m = 0; m < count; ++m) {
        const double distance = pulls.distance[m];
        const double square = (distance / 10000) * (distance / 10000);
        const bool apart = distance > 0;  // at the same place, as the node itself is: no pull
        pulls.x[m] = apart ? real(pulls.dx[m] / distance * a.gravity / square) : 0;
        pulls.y[m] = apart ? real(pulls.dy[m] / distance * a.gravity / square) : 0;
    }
}

// The top bit is set when a value lies so near the middle between two 32-bit reals that an error in its
// last bits could turn the rounding. The middle is bit 28 of a double with all bits below it clear; the
// window reaches several times as far to both sides as the shorter formula can err.
std::uint64_t nearMiddle(double value) {
    constexpr std::uint64_t middle = 1U << 28, window = 64;  // in last bits
    return ((std::bit_cast<std::uint64_t>(value) - (middle - window)) & (2 * middle - 2 * window)) - 1;
}

// The same with one division instead of five, which bound the plain formula: g 10000^2 / d^3 times the
// difference. It rounds a little differently on the way; false when that could show in a result.
ZENTRIK_WIDE_LOOP bool findPullsFast(const Attractor& a, std::size_t count, Pulls& pulls) {
    const double scaled = a.gravity * 1e8;
    for (std::size_t m = 0; m < count; ++m) {
        const double d = pulls.distance[m];
        pulls.strength[m] = d > 0 ? scaled / (d * d * d) : 0;
    }
    std::uint64_t doubtful = 0;
    for (std::size_t m = 0; m < count; ++m) {
        const double x = pulls.dx[m] * pulls.strength[m], y = pulls.dy[m] * pulls.strength[m];
        doubtful |= nearMiddle(x) | nearMiddle(y);
        pulls.x[m] = real(x);
        pulls.y[m] = real(y);
    }
    return doubtful >> 63 == 0;
}

ZENTRIK_WIDE_LOOP void addPulls(NodeLanes& lanes, const Pulls& pulls) {
    for (std::size_t m = 0; m < lanes.count; ++m) {
        lanes.x.force[m] = real(lanes.x.force[m] - wide(pulls.x[m]) * 10);
        lanes.y.force[m] = real(lanes.y.force[m] - wide(pulls.y[m]) * 10);
    }
}

// The same for one node: in a model full of attracting nodes each is a run of its own, and x and y are
// all that can go side by side.
void pullOne(const std::vector<Attractor>& attractors, NodeLanes& lanes) {
    const Double2 place{lanes.x.place[0], lanes.y.place[0]};
    Float2 force{lanes.x.force[0], lanes.y.force[0]};
    for (const Attractor& a : attractors) {
        const Double2 d = wide(round32(place - Double2{a.x, a.y}));
        const double distance = wide(real(std::sqrt(d[0] * d[0] + d[1] * d[1])));
        if (distance == 0) continue;
        const double square = (distance / 10000) * (distance / 10000);
        force = round32(wide(force) - wide(round32(d / distance * a.gravity / square)) * 10.0);
    }
    lanes.x.force[0] = force[0];
    lanes.y.force[0] = force[1];
}

// Weaker pulls may be so small that 32-bit reals have fewer digits for them.
bool strongEnough(const Attractor& a) { return std::fabs(a.gravity) > 1e-16; }

Attractor attractorOf(std::int32_t i, const Node& node) {
    const double gravity = node.Used ? wide(node.Gravity) : 0;
    return {i, double(node.X), double(node.Y), gravity};
}

}  // namespace

void Attraction::add(std::int32_t i, const Node& node) { attractors_.push_back(attractorOf(i, node)); }

// As measured on an ordinary machine of the day: nodes go side by side, but for those that attract.
double Attraction::expectedTime(const Editor& ed) const {
    constexpr double side = 2e-9, alone = 7e-9;  // seconds a pull
    double perAttractor = 0;
    if (!attractors_.empty())
        forEachNode(ed, [&](std::int32_t, const Node& node) {
            if (!node.Locked) perAttractor += node.Gravity != 0 ? alone : side;
        });
    return perAttractor * static_cast<double>(attractors_.size());
}

void Attraction::update(std::int32_t i, const Node& node) {
    const auto found =
        std::lower_bound(attractors_.begin(), attractors_.end(), i,
                         [](const Attractor& a, std::int32_t number) { return a.number < number; });
    if (found == attractors_.end() || found->number != i) return;
    *found = attractorOf(i, node);
}

void Attraction::pull(NodeLanes& lanes) const {
    if (lanes.count == 1) return pullOne(attractors_, lanes);
    Pulls pulls;
    for (const Attractor& a : attractors_) {
        subtract(a, lanes, pulls);
        measure(lanes.count, pulls);
        if (!strongEnough(a) || !findPullsFast(a, lanes.count, pulls)) findPulls(a, lanes.count, pulls);
        addPulls(lanes, pulls);
    }
}

}  // namespace zentrik
