#pragma once
// Bursts of free nodes added to the running model.

#include "model/editor.h"

namespace zentrik {

class Host;

// The fireworks' timer runs exactly while their menu entry is checked.
void followFireworksMark(Editor& ed, Host& host);

// One tick of the fireworks' own timer. Adds nothing while the animation stands.
void timerFireWorks_Timer(Editor& ed);

}  // namespace zentrik
