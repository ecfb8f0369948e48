#pragma once
// The pull of nodes with Gravity on all others.

#include "model/editor.h"
#include "sim/node_lanes.h"

#include <vector>

namespace zentrik {

// The nodes that attract others. Positions are those of this moment of the step, so whoever moves a
// node while it runs must say so.
class Attraction {
public:
    void clear() { attractors_.clear(); }
    // Nodes are added in index order.
    void add(std::int32_t i, const Node& node);
    bool empty() const { return attractors_.empty(); }
    // About how long one step pulls at all free nodes, seconds.
    double expectedTime(const Editor& ed) const;
    // A node moved or left the model.
    void update(std::int32_t i, const Node& node);
    // Adds the pull of all attracting nodes, in index order, to the forces.
    void pull(NodeLanes& lanes) const;

    struct Attractor {
        std::int32_t number;
        double x, y, gravity;
    };

private:
    std::vector<Attractor> attractors_;
};

}  // namespace zentrik
