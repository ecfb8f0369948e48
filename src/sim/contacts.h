#pragma once
// Contacts of a node that the step has just moved: floor, ceiling, walls, barrier links.

#include "model/editor.h"

#include <optional>
#include <vector>

namespace zentrik {

// The lines of the scene at which a node's centre stops, twips. The margin of 45 keeps nodes clear of
// the lower and right edge.
struct Bounds {
    std::int64_t low, right, floor;  // low: the ceiling's and the left wall's line

    bool touchedBy(const Node& node) const {
        return node.X <= low || node.Y <= low || node.X >= right || node.Y >= floor;
    }
};
Bounds boundsOf(const Editor& ed);

// What the wall contacts of one step leave behind for its end.
struct WallContacts {
    bool touched = false;        // the model's clock turns round
    bool othersChanged = false;  // nodes other than the one at the wall were turned or moved
    bool marked = false;         // the object marks of this step's last contact are still good
};

// The floor frees the node while fireworks run, unless they are persistent.
void floorAndCeiling(Editor& ed, std::int32_t i, const Bounds& bounds);
void walls(Editor& ed, std::int32_t i, const Bounds& bounds, WallContacts& contacts);

// The barrier links of one step, in index order. The test ends at the first one shorter than 1 twip:
// what comes behind it is not looked at, and then no distance is reported.
class Barriers {
public:
    void clear();
    // links: the used barrier links with both ends.
    void set(const Editor& ed, const std::vector<std::int32_t>& links);
    bool empty() const { return links_.empty(); }
    // A node moved; a barrier may hang on it.
    void nodeMoved(const Editor& ed, std::int32_t i);
    // Any node may have moved.
    void update(const Editor& ed);

    // Deflects a node at every barrier it touches, and gives the last distance measured (0 when no
    // barrier was near enough to measure one), or nothing when a short barrier ended the test.
    std::optional<float> BarrierTest(const Editor& ed, Node& node) const;
    // The same change to the node for a fraction of the cost, without the distance.
    void deflect(Editor& ed, std::int32_t i);

private:
    std::vector<std::int32_t> links_;
    std::vector<bool> isEnd_;  // by node
    bool cut_ = false;
    // Boxes that hold every place at which a barrier can deflect a node.
    std::vector<std::int32_t> left_, right_, top_, bottom_, near_;
};

}  // namespace zentrik
