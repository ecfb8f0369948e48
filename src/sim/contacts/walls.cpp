#include "sim/contacts/walls.h"

#include "basics/numbers.h"
#include "model/connected.h"
#include "model/store.h"
#include "sim/contacts/pair.h"

#include <cmath>

namespace zentrik {

namespace {

// Friction slows a node down at each turn, until rounding holds its speed.
float slowed(float velocity, std::uint32_t turns, float friction) {
    for (; turns > 0; --turns) {
        const float next = real(velocity * (1 - wide(friction)));
        if (std::fabs(next) == std::fabs(velocity)) return turns % 2 == 1 ? next : velocity;
        velocity = next;
    }
    return velocity;
}

void turn(Node& node, std::uint32_t turns, float friction) {
    if (turns % 2 == 1) {
        node.Vx = -node.Vx;
        node.Rotate = -node.Rotate;
    }
    node.Vy = slowed(node.Vy, turns, friction);
}

}  // namespace

void Walls::begin(Editor& editor, const Bounds& bounds) {
    ed_ = &editor;
    bounds_ = bounds;
    reverse_ = editor.marks.mnuReverseModel;
    apart_ = bounds.low < bounds.right;
    touched_ = false;
    lastObject_ = none;
}

// Links do not change during a step, so that one look for the objects is enough.
void Walls::prepare() {
    touched_ = true;
    const std::size_t nodes = ed_->Nodes.size();
    if (reverse_)
        objects_.assign(nodes, 0);
    else
        objects_ = connectedObjects(*ed_);
    done_.assign(nodes, 0);
    turns_.assign(2 * nodes, 0);
    behind_.clear();
    firstBehind_.assign(2 * nodes, none);
    moved_.clear();
    for (std::int32_t i = 1; i <= lastNode(*ed_); ++i) noteBehind(i);
}

std::int32_t Walls::line(Side side) const {
    return toInt(static_cast<double>(side == left ? bounds_.low : bounds_.right));
}

std::size_t Walls::group(std::int32_t i, Side side) const {
    return 2 * static_cast<std::size_t>(objects_[static_cast<std::size_t>(i)]) + (side == right ? 1 : 0);
}

Walls::Count Walls::owed(std::int32_t i) const {
    const std::int32_t x = nodeAt(*ed_, i).X;
    const Count done = done_[static_cast<std::size_t>(i)];
    if (reverse_ || reached(left, x)) return turns_[group(i, left)] - done;
    return reached(right, x) ? turns_[group(i, right)] - done : 0;
}

void Walls::settle(std::int32_t i) {
    Node& node = nodeAt(*ed_, i);
    const Count turns = node.Used ? owed(i) : 0;
    if (turns == 0) return;
    turn(node, turns, ed_->Friction);
    done_[static_cast<std::size_t>(i)] += turns;
}

void Walls::end() {
    if (!touched_) return;
    forEachNode(*ed_, [&](std::int32_t i, const Node&) { settle(i); });
    if (lastObject_ != none) markObject(*ed_, objects_, lastObject_);
}

void Walls::meet(std::int32_t i) {
    for (const Side side : {left, right})
        if (reached(side, nodeAt(*ed_, i).X)) contact(i, side);
}

void Walls::contact(std::int32_t i, Side side) {
    if (!touched_) prepare();
    if (reverse_) {
        nodeAt(*ed_, i).X = line(side);
        ++turns_[group(i, left)];
    } else {
        lastObject_ = objects_[static_cast<std::size_t>(i)];
        if (apart_)
            sendBack(i, side);
        else
            sendAllBack(side);
    }
    settle(i);
}

void Walls::sendBack(std::int32_t i, Side side) {
    const std::size_t g = group(i, side);
    const std::int32_t at = line(side);
    const auto send = [&](Node& node) {
        const bool behind = reached(side, node.X) && node.X != at;
        if (node.Used && behind) node.X = at;
        return node.Used && behind;
    };
    done_[static_cast<std::size_t>(i)] = turns_[g]++;
    send(nodeAt(*ed_, i));
    for (std::int32_t n = std::exchange(firstBehind_[g], none); n != none;) {
        const Behind& it = behind_[static_cast<std::size_t>(n)];
        if (send(nodeAt(*ed_, it.node))) moved_.push_back(it.node);
        n = it.next;
    }
}

// Where the scene is narrower than a node, the places at one wall are at the other too, and each contact
// sends the whole object from wall to wall. The turns it makes are owed one by one.
void Walls::sendAllBack(Side side) {
    forEachNode(*ed_, [&](std::int32_t i, Node& node) {
        const auto slot = static_cast<std::size_t>(i);
        if (objects_[slot] != lastObject_ || !reached(side, node.X)) return;
        node.X = line(side);
        --done_[slot];
        moved_.push_back(i);
    });
}

void Walls::nodeDeflected(std::int32_t i) {
    if (!touched_ || reverse_ || !apart_) return;
    for (const Side side : {left, right})
        if (reached(side, nodeAt(*ed_, i).X)) done_[static_cast<std::size_t>(i)] = turns_[group(i, side)];
    noteBehind(i);
}

void Walls::noteBehind(std::int32_t i) {
    if (reverse_ || !apart_) return;
    const std::int32_t x = nodeAt(*ed_, i).X;
    for (const Side side : {left, right}) {
        if (!reached(side, x) || x == line(side)) continue;
        std::int32_t& first = firstBehind_[group(i, side)];
        behind_.push_back({i, std::exchange(first, static_cast<std::int32_t>(behind_.size()))});
    }
}

}  // namespace zentrik
