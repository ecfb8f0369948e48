// Many hit tests at once. The points are taken from left to right; a node takes part while its box
// spans the point's x. A tree over the nodes in the order of their y holds the numbers of those taking
// part and answers with the lowest one within the box's height. Crowded or far-flung models cost no
// more than others, which cells of any fixed size could not promise.

#include "edit/hit.h"
#include "model/store.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace zentrik {

namespace {

constexpr std::int32_t absent = std::numeric_limits<std::int32_t>::max();

// Minimum over ranges of an array, bottom-up: leaf i is at size + i, a parent of 2n and 2n + 1 at n.
class MinimumTree {
public:
    explicit MinimumTree(std::size_t size) : size_(size), least_(2 * size, absent) {}

    void set(std::size_t i, std::int32_t value) {
        least_[i += size_] = value;
        while (i /= 2) least_[i] = std::min(least_[2 * i], least_[2 * i + 1]);
    }
    std::int32_t leastIn(std::size_t from, std::size_t to) const {
        std::int32_t least = absent;
        for (from += size_, to += size_; from < to; from /= 2, to /= 2) {
            if (from % 2) least = std::min(least, least_[from++]);
            if (to % 2) least = std::min(least, least_[--to]);
        }
        return least;
    }

private:
    std::size_t size_;
    std::vector<std::int32_t> least_;
};

// Numbers 0 to count - 1 in the order of key(number).
template <class Key>
std::vector<std::size_t> sortedBy(std::size_t count, Key key) {
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return key(a) < key(b); });
    return order;
}

struct Centre {
    double x = 0, y = 0;
    std::int32_t number = 0;
};

std::vector<Centre> centresFromTop(const Editor& ed) {
    std::vector<Centre> centres;
    forEachNode(ed, [&](std::int32_t i, const Node& node) {
        centres.push_back({static_cast<double>(node.X), static_cast<double>(node.Y), i});
    });
    std::sort(centres.begin(), centres.end(), [](const Centre& a, const Centre& b) { return a.y < b.y; });
    return centres;
}

}  // namespace

std::vector<std::int32_t> nodesAtPoints(const Editor& ed, const std::vector<PointF>& points) {
    std::vector<std::int32_t> found(points.size(), none);
    const double half = ed.HitRadius;
    const std::vector<Centre> centres = centresFromTop(ed);
    const auto fromLeft = sortedBy(centres.size(), [&](std::size_t i) { return centres[i].x; });
    MinimumTree taking(centres.size());
    std::size_t joined = 0, left = 0;  // places in fromLeft: [left, joined) take part

    for (const std::size_t at : sortedBy(points.size(), [&](std::size_t i) { return points[i].x; })) {
        const double X = points[at].x, Y = points[at].y;
        for (; joined < fromLeft.size() && centres[fromLeft[joined]].x - half < X; ++joined)
            taking.set(fromLeft[joined], centres[fromLeft[joined]].number);
        for (; left < joined && centres[fromLeft[left]].x + half <= X; ++left)
            taking.set(fromLeft[left], absent);
        const auto above = [&](const Centre& centre) { return centre.y + half <= Y; };
        const auto notBelow = [&](const Centre& centre) { return centre.y - half < Y; };
        const auto first = std::partition_point(centres.begin(), centres.end(), above);
        const auto end = std::partition_point(first, centres.end(), notBelow);
        const std::int32_t least = taking.leastIn(static_cast<std::size_t>(first - centres.begin()),
                                                  static_cast<std::size_t>(end - centres.begin()));
        if (least != absent) found[at] = least;
    }
    return found;
}

}  // namespace zentrik
