#pragma once
#include "display/sprites.h"
#include "model/editor.h"

class QPainter;

namespace zentrik {

// Paints the whole scene, layer by layer, from the painter's origin; window, screenshots and tests use
// the same procedure. Changes nothing in the record: what a redraw changes is done by DisplayScene.
void drawScene(QPainter& painter, const Editor& ed, const SpritePictures& sprites);

}  // namespace zentrik
