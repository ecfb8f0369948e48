#pragma once
// What lies under the nodes: the dot grid, the links, the highlight of animated links; and the rubber
// band of draw mode.

#include "display/canvas/canvas.h"
#include "model/editor.h"

namespace zentrik {

void DisplayGrid(const Canvas& canvas, const Editor& ed);
void drawLinks(const Canvas& canvas, const Editor& ed);
void drawAnimatedLinks(const Canvas& canvas, const Editor& ed);
void drawRubberBand(const Canvas& canvas, const Editor& ed);

}  // namespace zentrik
