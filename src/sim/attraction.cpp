#include "sim/attraction.h"

#include "model/store.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace zentrik {

namespace {

using Attractor = Attraction::Attractor;

struct Pulls {
    NodeLanes::Column<float> x, y;
};

// The formula itself: g / (d / 10000)^2 along the line to the attracting node.
[[gnu::noinline]] void findPulls(const Attractor& a, const NodeLanes& lanes, Pulls& pulls) {
    for (std::size_t m = 0; m < lanes.count; ++m) {
        const double dx = wide(real(lanes.x[m] - a.x)), dy = wide(real(lanes.y[m] - a.y));
        const double distance = wide(real(std::sqrt(dx * dx + dy * dy)));
        const double square = (distance / 10000) * (distance / 10000);
        const bool apart = distance > 0;  // at the same place, as the node itself is: no pull
        pulls.x[m] = apart ? real(dx / distance * a.gravity / square) : 0;
        pulls.y[m] = apart ? real(dy / distance * a.gravity / square) : 0;
    }
}

// True when a value lies so near the middle between two 32-bit reals that an error in its last bits
// could turn the rounding. The middle is bit 28 of a double with all bits below it clear; the window
// reaches several times as far to both sides as the shorter formula can err.
bool nearMiddle(double value) {
    constexpr std::uint32_t middle = 1U << 28, window = 64;  // in last bits
    const auto low = static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(value));
    return ((low - (middle - window)) & (2 * middle - 2 * window)) == 0;
}

// The same with one division instead of five, which bound the plain formula: g 10000^2 / d^3 times the
// difference. It rounds a little differently on the way; false when that could show in a result.
[[gnu::noinline]] bool findPullsFast(const Attractor& a, const NodeLanes& lanes, Pulls& pulls) {
    const double scaled = a.gravity * 1e8;
    std::uint32_t doubtful = 0;
    for (std::size_t m = 0; m < lanes.count; ++m) {
        const double dx = wide(real(lanes.x[m] - a.x)), dy = wide(real(lanes.y[m] - a.y));
        const double distance = wide(real(std::sqrt(dx * dx + dy * dy)));
        const double strength = distance > 0 ? scaled / (distance * distance * distance) : 0;
        const double pullX = dx * strength, pullY = dy * strength;
        doubtful |= static_cast<std::uint32_t>(nearMiddle(pullX) | nearMiddle(pullY));
        pulls.x[m] = real(pullX);
        pulls.y[m] = real(pullY);
    }
    return doubtful == 0;
}

[[gnu::noinline]] void addPulls(NodeLanes& lanes, const Pulls& pulls) {
    for (std::size_t m = 0; m < lanes.count; ++m) {
        lanes.fx[m] = real(lanes.fx[m] - wide(pulls.x[m]) * 10);
        lanes.fy[m] = real(lanes.fy[m] - wide(pulls.y[m]) * 10);
    }
}

// Weaker pulls may be so small that 32-bit reals have fewer digits for them.
bool strongEnough(const Attractor& a) { return std::fabs(a.gravity) > 1e-16; }

}  // namespace

void Attraction::add(std::int32_t i, const Node& node) {
    attractors_.push_back({i, double(node.X), double(node.Y), wide(node.Gravity)});
}

void Attraction::update(std::int32_t i, const Node& node) {
    const auto found =
        std::lower_bound(attractors_.begin(), attractors_.end(), i,
                         [](const Attractor& a, std::int32_t number) { return a.number < number; });
    if (found == attractors_.end() || found->number != i) return;
    *found = {i, double(node.X), double(node.Y), node.Used ? wide(node.Gravity) : 0};
}

void Attraction::updateAll(const Editor& ed) {
    for (const Attractor& a : attractors_) update(a.number, nodeAt(ed, a.number));
}

void Attraction::pull(NodeLanes& lanes) const {
    Pulls pulls{};
    for (const Attractor& a : attractors_) {
        if (!strongEnough(a) || !findPullsFast(a, lanes, pulls)) findPulls(a, lanes, pulls);
        addPulls(lanes, pulls);
    }
}

}  // namespace zentrik
