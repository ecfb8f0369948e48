#pragma once
#include "model/editor.h"

namespace zentrik {

// V (twips) moved to the nearest grid line while the snap button is pressed, else V unchanged. Points
// left of or above the origin move toward zero.
float SnapToGrid(const Editor& ed, float V);

}  // namespace zentrik
