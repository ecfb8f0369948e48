#include "model/extent.h"

#include <algorithm>
#include <utility>

namespace zentrik {

Extent extentOf(const std::vector<Node>& nodes) {
    Extent extent;
    bool first = true;
    for (const Node& node : nodes) {
        if (!node.Used) continue;
        if (std::exchange(first, false)) extent = {node.X, node.Y, node.X, node.Y};
        extent.left = std::min(extent.left, node.X), extent.right = std::max(extent.right, node.X);
        extent.top = std::min(extent.top, node.Y), extent.bottom = std::max(extent.bottom, node.Y);
    }
    return extent;
}

}  // namespace zentrik
