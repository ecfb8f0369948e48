#include "sim/contacts/barriers.h"

#include "basics/numbers.h"
#include "model/store.h"
#include "sim/contacts/pair.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace zentrik {

namespace {

// What one barrier does to a node. Returns the distance, or a negative number when the node's foot
// lies beyond the ends.
float meetBarrier(const Editor& ed, const Link& link, Node& node) {
    const Node& a = nodeAt(ed, link.N1);
    const Node& b = nodeAt(ed, link.N2);
    const double x1 = a.X, y1 = a.Y, ex = b.X - x1, ey = b.Y - y1;
    const double length = link.CurrentLength;
    const float u = real(((node.Y - y1) * ey + (node.X - x1) * ex) / (length * length));
    if (!(u > 0 && u < 1)) return -1;
    const float cx = real(x1 + u * ex);
    const float cy = real(y1 + u * ey);
    const double offX = wide(cx) - node.X;
    const double offY = wide(cy) - node.Y;
    const float d = real(std::sqrt(offY * offY + offX * offX));
    if (wide(d) > ed.NodeRadius) return d;
    const double r = ed.NodeRadius, bounce = ed.Bounce;
    if (a.Y == b.Y) {
        node.Y = toInt(node.Vy <= 0 ? y1 + r : y1 - r);
        node.Vy = real(-node.Vy * bounce);
        node.Vx = real(node.Vx * bounce);
    } else if (a.X == b.X) {
        node.X = toInt(node.Vx <= 0 ? x1 + r : x1 - r);
        node.Vy = real(node.Vy * bounce);
        node.Vx = real(-node.Vx * bounce);
    }
    return d;
}

}  // namespace

void Barriers::clear() {
    links_.clear();
    cut_ = false;
}

void Barriers::set(const Editor& ed, const std::vector<std::int32_t>& links) {
    clear();
    for (const std::int32_t j : links) {
        cut_ = linkAt(ed, j).CurrentLength < 1;
        if (cut_) break;
        links_.push_back(j);
    }
    if (empty()) return;
    for (auto* side : {&left_, &right_, &top_, &bottom_, &near_}) side->resize(links_.size());
    for (std::size_t m = 0; m < links_.size(); ++m) placeBox(ed, m);
    sortByEnds(ed);
}

// Counts the barriers at each node, and lays them out from the last one down to the first.
void Barriers::sortByEnds(const Editor& ed) {
    first_.assign(ed.Nodes.size() + 1, 0);
    const auto forEachEnd = [&](auto visit) {
        for (std::size_t m = 0; m < links_.size(); ++m)
            for (const std::int32_t end : {linkAt(ed, links_[m]).N1, linkAt(ed, links_[m]).N2})
                visit(first_[static_cast<std::size_t>(end)], static_cast<std::uint32_t>(m));
    };
    forEachEnd([](std::uint32_t& count, std::uint32_t) { ++count; });
    std::partial_sum(first_.begin(), first_.end(), first_.begin());
    hanging_.resize(first_.back());
    forEachEnd([&](std::uint32_t& next, std::uint32_t m) { hanging_[--next] = m; });
}

void Barriers::nodeMoved(const Editor& ed, std::int32_t i) {
    if (empty()) return;
    const auto node = static_cast<std::size_t>(i);
    for (std::uint32_t n = first_[node]; n < first_[node + 1]; ++n) placeBox(ed, hanging_[n]);
}

void Barriers::placeBox(const Editor& ed, std::size_t m) {
    const Link& link = linkAt(ed, links_[m]);
    const auto [x1, x2] = std::minmax({nodeAt(ed, link.N1).X, nodeAt(ed, link.N2).X});
    const auto [y1, y2] = std::minmax({nodeAt(ed, link.N1).Y, nodeAt(ed, link.N2).Y});
    // The foot of a node is a 32-bit real, so far from the origin it may lie beside the barrier.
    const double far = std::max(
        {std::fabs(double(x1)), std::fabs(double(x2)), std::fabs(double(y1)), std::fabs(double(y2))});
    const double reach = std::max(ed.NodeRadius, 0) * (1 + 1e-6) + far * 1e-6 + 2;
    left_[m] = toInt(x1 - reach);
    right_[m] = toInt(x2 + reach);
    top_[m] = toInt(y1 - reach);
    bottom_[m] = toInt(y2 + reach);
}

std::optional<float> Barriers::BarrierTest(const Editor& ed, Node& node) const {
    float last = 0;
    for (const std::int32_t j : links_) {
        const float d = meetBarrier(ed, linkAt(ed, j), node);
        if (d >= 0) last = d;
    }
    if (cut_) return std::nullopt;
    return last;
}

void Barriers::deflect(Editor& ed, std::int32_t i) {
    Node& node = nodeAt(ed, i);
    const std::size_t count = links_.size();
    for (std::size_t from = 0; from < count;) {
        const std::size_t to = std::min(count, from + 64);
        const std::int32_t x = node.X, y = node.Y;
        std::int32_t anyNear = 0;
        for (std::size_t m = from; m < to; ++m) {
            near_[m] = int{x >= left_[m]} & int{x <= right_[m]} & int{y >= top_[m]} & int{y <= bottom_[m]};
            anyNear |= near_[m];
        }
        std::size_t next = to;
        for (std::size_t m = from; anyNear != 0 && m < to; ++m) {
            if (near_[m] == 0) continue;
            meetBarrier(ed, linkAt(ed, links_[m]), node);
            // A node put elsewhere is near other barriers than before, and takes its own along.
            if (node.X != x || node.Y != y) {
                nodeMoved(ed, i);
                next = m + 1;
                break;
            }
        }
        from = next;
    }
}

}  // namespace zentrik
