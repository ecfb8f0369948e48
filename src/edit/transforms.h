#pragma once
// Enlarging, shrinking, turning, centring and moving the project. With "Apply Changes Only to Selected
// Object" checked they act on the selected object. The caller redraws.

#include "model/editor.h"

namespace zentrik {

// These four act on the whole project when nothing is selected. Links that are scaled or turned along
// take their new length as rest length.
void Increase(Editor& ed);
void Decrease(Editor& ed);
void RotateAnimation(Editor& ed);
void CenterAnimation(Editor& ed);

// Moves by whole grid steps, dy downwards. Moves nothing when it should move the selected object and
// nothing is selected.
void moveProject(Editor& ed, int dx, int dy);

}  // namespace zentrik
