#include "sim/contacts.h"

#include "model/connected.h"
#include "model/numbers.h"
#include "model/store.h"
#include "sim/pair.h"

#include <algorithm>
#include <cmath>

namespace zentrik {

namespace {

constexpr std::int64_t margin = 45;  // twips

void bounceVertically(const Editor& ed, Node& node) {
    node.Vy = real(-wide(node.Vy) * ed.Bounce);
    node.Vx = real(node.Vx * (1 - wide(ed.Friction)));
}

void turnAtWall(const Editor& ed, Node& node) {
    node.Vx = -node.Vx;
    node.Vy = real(node.Vy * (1 - wide(ed.Friction)));
    node.Rotate = -node.Rotate;
}

// One wall: reached(x) tells which side of it counts as contact.
template <class Reached>
void wall(Editor& ed, std::int32_t i, std::int64_t at, Reached reached, WallContacts& contacts) {
    if (!reached(nodeAt(ed, i).X)) return;
    const std::int32_t line = toInt(static_cast<double>(at));
    contacts.touched = contacts.othersChanged = true;
    if (ed.marks.mnuReverseModel) {
        nodeAt(ed, i).X = line;
        forEachNode(ed, [&](std::int32_t, Node& node) { turnAtWall(ed, node); });
        return;
    }
    // Links do not change during a step, so an object found once in it need not be searched again.
    if (!contacts.marked || !nodeAt(ed, i).Res3) {
        std::int32_t start = i;
        MarkConnectedNodes(ed, start, none);
        contacts.marked = true;
    }
    forEachNode(ed, [&](std::int32_t, Node& node) {
        if (!node.Res3 || !reached(node.X)) return;
        node.X = line;
        turnAtWall(ed, node);
    });
}

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

Bounds boundsOf(const Editor& ed) {
    const std::int64_t r = ed.NodeRadius;
    return {r, ed.sceneWidth - r - margin, ed.sceneHeight - r - margin};
}

void floorAndCeiling(Editor& ed, std::int32_t i, const Bounds& bounds) {
    Node& node = nodeAt(ed, i);
    if (node.Y >= bounds.floor) {
        node.Y = toInt(static_cast<double>(bounds.floor));
        bounceVertically(ed, node);
        if (ed.timerFireWorks.enabled && !ed.marks.mnuPersistentFireworks) {
            node.Used = false;
            if (ed.SelectedNode == i) ed.SelectedNode = none;
        }
    }
    if (ed.marks.mnuCeiling && node.Y <= bounds.low) {
        node.Y = ed.NodeRadius;
        bounceVertically(ed, node);
    }
}

void walls(Editor& ed, std::int32_t i, const Bounds& bounds, WallContacts& contacts) {
    const std::int64_t left = bounds.low, right = bounds.right;
    wall(
        ed, i, left, [left](std::int32_t x) { return x <= left; }, contacts);
    wall(
        ed, i, right, [right](std::int32_t x) { return x >= right; }, contacts);
}

void Barriers::clear() {
    links_.clear();
    cut_ = false;
}

void Barriers::set(const Editor& ed, const std::vector<std::int32_t>& links) {
    clear();
    isEnd_.assign(ed.Nodes.size(), false);
    for (const std::int32_t j : links) {
        const Link& link = linkAt(ed, j);
        cut_ = link.CurrentLength < 1;
        if (cut_) break;
        links_.push_back(j);
        isEnd_[static_cast<std::size_t>(link.N1)] = true;
        isEnd_[static_cast<std::size_t>(link.N2)] = true;
    }
    update(ed);
}

void Barriers::nodeMoved(const Editor& ed, std::int32_t i) {
    if (isEnd_[static_cast<std::size_t>(i)]) update(ed);
}

void Barriers::update(const Editor& ed) {
    for (auto* side : {&left_, &right_, &top_, &bottom_, &near_}) side->resize(links_.size());
    for (std::size_t m = 0; m < links_.size(); ++m) {
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
