#pragma once
// Contacts of a node that the step has just moved with barrier links.

#include "model/editor.h"

#include <optional>
#include <vector>

namespace zentrik {

// The barrier links of one step, in index order. The test ends at the first one shorter than 1 twip:
// what comes behind it is not looked at, and then no distance is reported.
class Barriers {
public:
    void clear();
    // links: the used barrier links with both ends.
    void set(const Editor& ed, const std::vector<std::int32_t>& links);
    bool empty() const { return links_.empty(); }
    // A node moved; barriers may hang on it.
    void nodeMoved(const Editor& ed, std::int32_t i);

    // Deflects a node at every barrier it touches, and gives the last distance measured (0 when no
    // barrier was near enough to measure one), or nothing when a short barrier ended the test.
    std::optional<float> BarrierTest(const Editor& ed, Node& node) const;
    // The same change to the node for a fraction of the cost, without the distance.
    void deflect(Editor& ed, std::int32_t i);

private:
    std::vector<std::int32_t> links_;
    bool cut_ = false;
    // Boxes that hold every place at which a barrier can deflect a node.
    std::vector<std::int32_t> left_, right_, top_, bottom_, near_;
    // The barriers that hang on node i are hanging_[first_[i]] up to hanging_[first_[i + 1]].
    std::vector<std::uint32_t> first_, hanging_;

    void sortByEnds(const Editor& ed);
    void placeBox(const Editor& ed, std::size_t m);
};

}  // namespace zentrik
