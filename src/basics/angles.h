#pragma once
// Factors of angles, rounded as the first projects were made with them. Exact ones would let every animator,
// every thrown ball and every ring come out a little elsewhere.

namespace zentrik {

inline constexpr double degreesToRadians = 0.01745, radiansToDegrees = 57.296;
inline constexpr double ringTurn = 6.283;  // round which rings and sparks stand
inline constexpr double curveTurn = 6.28;  // of the phase strip's sine curve
inline constexpr double aimQuarter = 1.5708, aimHalf = 3.1416, aimThreeQuarters = 4.7124, aimTurn = 6.2832;
inline constexpr double projectTurn = 0.087266;  // 5 degrees, of "Rotate Project"

}  // namespace zentrik
