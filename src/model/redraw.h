#pragma once
// What a redraw changes at its call. Pixels are painted later, once per screen refresh at most, from
// the record as it then stands.

#include "model/editor.h"

namespace zentrik {

// The full redraw of the scene. PX, PY: the pointer in twips, where a rubber band ends. Locks the trigger
// nodes of shooters, enables the property toolbar's groups and presses their buttons, shows the clock, and
// marks the scene stale.
void DisplayScene(Editor& ed, float PX, float PY);
// The same for whatever is not the mouse.
void redrawScene(Editor& ed);

// The same without a change to the model: after a step, which keeps the triggers locked by itself.
void showScene(Editor& ed, float PX, float PY);

// Lays every animated link's disc out in the phase strip (into the link's DiscX, DiscY) and shifts the
// strip's sine curve by the phase that the animators have at a time of the clock. Angles outside 0 to 360
// stack at the nearer end.
void DrawPhaseManager(Editor& ed, float time);
// The same, only while the strip is shown.
void redrawPhaseManager(Editor& ed, float time);

// The phase strip, if shown, for the clock's time, then the scene.
void redrawStripAndScene(Editor& ed);
// The same where nodes or links came or went: with their counts.
void redrawModel(Editor& ed);

// The text printed over the scene until the next redraw.
void DisplayOnscreenInstructions(Editor& ed);

// Status panel 4.
void showClock(Editor& ed);

}  // namespace zentrik
