#pragma once
#include <cmath>

namespace zentrik {

// Model and layout are in twips, 1440 to the inch; a device-independent pixel is 1/96 inch.
inline constexpr int twipsPerPixel = 15;

inline int pixels(double twips) { return static_cast<int>(std::lround(twips / twipsPerPixel)); }

}  // namespace zentrik
