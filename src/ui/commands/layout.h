#pragma once
// Where the scene, the phase strip and the sprite strip stand in the main window. Twips.
//
// Coordinates are those of the window's client area, which begins below the menu bar and the command
// toolbar and holds the property toolbar at its top; the window's inner height also counts what lies
// above and below it, so that the margins of the arrangement leave room for all bars.

#include "model/editor.h"

namespace zentrik {

inline constexpr std::int32_t smallestWidth = 14400, smallestHeight = 5000;  // of the window
inline constexpr std::int32_t sceneLeft = 60, sceneTop = 570;
inline constexpr std::int32_t spriteStripHeight = 720, scrollBarHeight = 210;

// Arranges the areas for a new inner size of the main window and redraws.
void Form_Resize(Editor& ed, std::int32_t SW, std::int32_t SH);
// The same for the present size, after a strip was shown or hidden.
void layOut(Editor& ed);

}  // namespace zentrik
