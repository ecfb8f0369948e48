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

// By keyboard: selects the disc some places to the right, or to the left below 0, in the order of their
// phases.
void stepDisc(Editor& ed, int places);
// Turns the phase of the selected disc by 5 degrees a step, or by the phase grid's while snap is pressed.
void turnDisc(Editor& ed, int steps);

}  // namespace zentrik
