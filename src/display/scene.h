#pragma once
#include "display/canvas/canvas.h"
#include "display/sprites.h"
#include "model/editor.h"

class QPainter;

namespace zentrik {

enum class Ground { painted, clear };  // clear: what lies under the scene shows

// Paints the whole scene, layer by layer, from the painter's origin; window, screenshots and tests use
// the same procedure. Changes nothing in the record: what a redraw changes is done by DisplayScene.
void drawScene(QPainter& painter, const Editor& ed, const SpritePictures& sprites,
               Ground ground = Ground::painted);

// The same in three parts, one over the other: the marks of selection and hovering with the rubber band lie
// between what stays while the pointer moves over a still scene.
void drawUnderMarks(const Canvas& canvas, const Editor& ed, Ground ground = Ground::painted);
void drawMarksAndBand(const Canvas& canvas, const Editor& ed);
void drawOverMarks(const Canvas& canvas, const Editor& ed, const SpritePictures& sprites);
// False where drawOverMarks would draw nothing.
bool anythingOverMarks(const Editor& ed);

}  // namespace zentrik
