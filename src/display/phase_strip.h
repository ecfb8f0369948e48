#pragma once
#include "model/editor.h"

class QPainter;

namespace zentrik {

// Paints the phase angle strip from the painter's origin: the axis from 0 to 360 degrees, a numbered
// disc for every animated link where DrawPhaseManager laid it, and the sine curve.
void drawPhaseStrip(QPainter& painter, const Editor& ed);

}  // namespace zentrik
