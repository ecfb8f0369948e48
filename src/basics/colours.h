#pragma once
#include <cstdint>

namespace zentrik {

// red + 256 * green + 65536 * blue.
inline constexpr std::int32_t black = 0, white = 0xFFFFFF, red = 0xFF, green = 0xFF00, blue = 0xFF0000,
                              yellow = 0xFFFF, gridGrey = 0xDCDCDC;

}  // namespace zentrik
