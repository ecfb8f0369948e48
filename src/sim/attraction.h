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

    std::size_t count = 0;
    Column<double> x{}, y{};  // twips
    Column<float> fx{}, fy{}, vx{}, vy{}, mass{};
};

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
    };

private:
    std::vector<Attractor> attractors_;
};

}  // namespace zentrik
