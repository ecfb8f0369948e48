#pragma once
// A run without a window and its timers.

#include "model/editor.h"

#include <string>

namespace zentrik {

// Presses the start button. Chance is tied, so that equal models run alike.
void beginRun(Editor& ed);

// What a tick of the animation timer does to the model, with nothing shown; false when the model could not
// make the step and stands as before it.
bool stepRun(Editor& ed);

// Why a run ended, in words; the empty text while it goes on.
std::string whyStopped(const Editor& ed);

}  // namespace zentrik
