#pragma once
// A run of free nodes as the attraction sees it.

#include <array>
#include <cstddef>
#include <cstdint>

namespace zentrik {

// Free nodes side by side, one column a quantity, so that short loops over them vectorise.
struct NodeLanes {
    static constexpr std::size_t size = 64;
    template <class T>
    using Column = std::array<T, size>;
    struct Axis {
        Column<double> place;  // twips
        Column<float> force;
    };

    std::size_t count = 0;
    Axis x, y;
};

// Whether the difference of any two of the places added is exact as a 32-bit real.
class PlaceSpread {
public:
    void add(std::int32_t x, std::int32_t y) {
        seen_ |= static_cast<std::uint32_t>(x) + limit;
        seen_ |= static_cast<std::uint32_t>(y) + limit;
    }
    bool isSmall() const { return seen_ < 2 * limit; }

private:
    static constexpr std::uint32_t limit = 1U << 23;
    std::uint32_t seen_ = 0;
};

}  // namespace zentrik
