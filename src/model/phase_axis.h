#pragma once
// Where things are in the phase strip.

namespace zentrik {

// The axis from 0 to 360 degrees, as fractions of the strip's width: room on its left, and its length.
inline constexpr double phaseAxisLeft = 0.1, phaseAxisLength = 0.8;

// Discs of links with the same phase stand one below the other, twips.
inline constexpr int firstDisc = 300, nextDisc = 200;

}  // namespace zentrik
