#pragma once
#include "model/editor.h"

#include <cstddef>

class QPainter;

namespace zentrik {

// Adds the dots from number `from` on to a picture that already shows the earlier ones.
void drawPath(QPainter& painter, const std::vector<PathDot>& dots, std::size_t from);

}  // namespace zentrik
