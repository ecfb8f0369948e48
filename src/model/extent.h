#pragma once
#include "model/records.h"

#include <vector>

namespace zentrik {

// The rectangle around all used nodes' centres, twips; all 0 where there is none.
struct Extent {
    std::int32_t left = 0, top = 0, right = 0, bottom = 0;

    double width() const { return static_cast<double>(right) - left; }
    double height() const { return static_cast<double>(bottom) - top; }
};
Extent extentOf(const std::vector<Node>& nodes);

}  // namespace zentrik
