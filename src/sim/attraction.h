#pragma once
// The pull of nodes with Gravity on all others.

#include "model/editor.h"
#include "sim/pair.h"

#include <array>
#include <vector>

namespace zentrik {

// Free nodes side by side, one column a quantity, so that short loops over them vectorise.
struct NodeLanes {
    static constexpr std::size_t size = 64;
    template <class T>
    using Column = std::array<T, size>;
    struct Axis {
        Column<double> place;  // twips
        Column<float> velocity, force;
    };

    std::size_t count = 0;
    bool small = false;  // all places are: see isSmall
    Axis x, y;
    Column<float> mass;
};

// The difference of any two small places is exact as a 32-bit real.
inline bool isSmall(std::int32_t x, std::int32_t y) {
    constexpr std::uint32_t limit = 1U << 23;
    return ((static_cast<std::uint32_t>(x) + limit) | (static_cast<std::uint32_t>(y) + limit)) < 2 * limit;
}

// The nodes that attract others. Positions are those of this moment of the step, so whoever moves a
// node while it runs must say so.
class Attraction {
public:
    void clear() { attractors_.clear(); }
    // Nodes are added in index order.
    void add(std::int32_t i, const Node& node);
    bool empty() const { return attractors_.empty(); }
    // A node moved or left the model.
    void update(std::int32_t i, const Node& node);
    // Any node may have moved.
    void updateAll(const Editor& ed);
    // Adds the pull of all attracting nodes, in index order, to the forces.
    void pull(NodeLanes& lanes) const;

    struct Attractor {
        std::int32_t number;
        double x, y, gravity;
        bool small;
    };

private:
    std::vector<Attractor> attractors_;
};

}  // namespace zentrik
