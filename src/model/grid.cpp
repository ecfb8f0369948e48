#include "model/grid.h"

#include "basics/numbers.h"

namespace zentrik {

float SnapToGrid(const Editor& ed, float V) {
    const std::int64_t g = toInt(static_cast<double>(ed.GridSize));
    if (!ed.buttons.snap || g == 0) return V;
    const std::int64_t n = toInt(static_cast<double>(V));
    const std::int64_t q = n / g;
    const std::int64_t r = n % g;
    const double size = static_cast<double>(ed.GridSize);
    const bool up = size / 2 <= static_cast<double>(r);
    return toReal(static_cast<double>(up ? q + 1 : q) * size);
}

}  // namespace zentrik
