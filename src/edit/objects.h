#pragma once
// Duplicates, barriers, and the road across the bottom of the scene.

#include "model/editor.h"

namespace zentrik {

class Host;

// Locks the selected object's nodes, makes its links barriers and deselects it.
void ConvertObjectToBarrier(Editor& ed, Host& host);

// Both put the copy one grid step to the right and down and select it.
void mnuDuplicateNode_Click(Editor& ed, Host& host);
void mnuDuplicateObject_Click(Editor& ed, Host& host);

void mnuCreateRoad_Click(Editor& ed, Host& host);

}  // namespace zentrik
