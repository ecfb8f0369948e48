#pragma once
// The force stages of one step, in the order in which the step runs them.

#include "model/editor.h"
#include "sim/pair.h"

#include <vector>

namespace zentrik {

// A node as the link stages see it: small enough that a large model stays in the processor's cache.
struct ForcePoint {
    Int2 place;  // twips
    Float2 force;
};
using ForcePoints = std::vector<ForcePoint>;  // by node number

// Each node drives the nodes linked to it by its Rotate, at right angles to the link.
void applyRotationalDrive(const Editor& ed, ForcePoints& points);

// Springs and animators of all links, in index order; measures every link's CurrentLength. Appends the
// used barrier links with both ends to barriers.
void applySprings(Editor& ed, ForcePoints& points, std::vector<std::int32_t>& barriers);

// The nodes that attract others, laid out for the pair loop. Positions are those of this moment of the
// step, so whoever moves a node while it runs must say so.
class Attraction {
public:
    void clear();
    // Nodes are added in index order.
    void add(std::int32_t i, const Node& node);
    bool empty() const { return number_.empty(); }
    // A node moved or left the model.
    void update(std::int32_t i, const Node& node);
    // Any node may have moved.
    void updateAll(const Editor& ed);
    // Adds the pull of all attracting nodes, in index order, to the force on a node.
    void pull(Int2 place, Float2& force) const;

private:
    std::vector<std::int32_t> number_;
    std::vector<double> x_, y_, gravity_;
};

}  // namespace zentrik
