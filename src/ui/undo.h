#pragma once
// Undo and redo as a person meets them: a run is stopped first, and status panel 5 says what happened.

#include "history/history.h"

namespace zentrik {

void undoLast(Editor& ed, History& history);
void redoNext(Editor& ed, History& history);

}  // namespace zentrik
