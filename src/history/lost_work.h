#pragma once
// What the person throws away that no file holds. It goes to History::lost, for the window to keep.

#include "history/steps.h"

namespace zentrik {

// The step about to be recorded leads from history.shown to ed, and what could be redone is given up.
void noteStep(History& history, const Editor& ed, Step& step);

// A run begins to move the model.
void noteRun(History& history);

// What could be redone may be all there is of it. whenMuch: a few steps that added little do not count.
enum class Undone { whenMuch, everything };
void noteUndone(History& history, const Size& present, Undone how);

}  // namespace zentrik
