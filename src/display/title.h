#pragma once
// The project's title above the scene: one line of any writing.

#include "display/canvas/canvas.h"
#include "model/editor.h"

namespace zentrik {

void drawTitle(const Canvas& canvas, const Editor& ed, std::int32_t ink);

}  // namespace zentrik
