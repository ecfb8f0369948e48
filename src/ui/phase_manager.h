#pragma once
// The mouse in the phase strip. X and Y in twips of the strip.

#include "model/editor.h"

namespace zentrik {

// The first used link whose disc lies under the point; told in status panel 5. -1 and false for none.
bool OverPhase(Editor& ed, float X, float Y, std::int32_t& iOver);
// The angle under a pointer, degrees within 0 to 360, on the phase grid while snap is pressed.
float SnapToPhaseGrid(const Editor& ed, float X);

void picPhase_MouseDown(Editor& ed, int Button, float X, float Y);
void picPhase_MouseMove(Editor& ed, float X, float Y);
void picPhase_MouseUp(Editor& ed);
void picPhase_DblClick(Editor& ed);

}  // namespace zentrik
