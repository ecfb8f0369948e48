#pragma once
// Nodes with their shooters' barrels and gravity dots, and the marks of selection and hovering.

#include "display/canvas/canvas.h"
#include "model/editor.h"

namespace zentrik {

void drawNodes(const Canvas& canvas, const Editor& ed);
// Selected node, hover node, selected link, hover link, in that order; whatever the buttons say.
void drawMarks(const Canvas& canvas, const Editor& ed);

}  // namespace zentrik
