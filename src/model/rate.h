#pragma once
#include "model/editor.h"

namespace zentrik {

// Periods the animation timer accepts, milliseconds.
inline constexpr std::int32_t shortestPeriod = 1, longestPeriod = 65535;

inline bool isPeriod(std::int32_t milliseconds) {
    return milliseconds >= shortestPeriod && milliseconds <= longestPeriod;
}

// Changes the animation timer's period; refuses one it does not accept and leaves the old one.
inline bool setRate(Editor& ed, std::int32_t milliseconds) {
    if (!isPeriod(milliseconds)) return false;
    ed.timerPeriod = milliseconds;
    return true;
}

}  // namespace zentrik
