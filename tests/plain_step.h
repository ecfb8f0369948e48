#pragma once
// The step as plain loops, one statement a formula and no shortcut: what the program's own step is
// compared with, bit for bit.

#include "model/editor.h"

namespace zentrik::plain {

void step(Editor& ed);

// The search of a node's object that looks through all links for every node it reaches.
void markConnected(Editor& ed, std::int32_t start);

}  // namespace zentrik::plain
