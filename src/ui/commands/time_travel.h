#pragma once
// Going through the run while the animation stands, and how the run follows undo and redo.

#include "history/history.h"
#include "history/timeline.h"

namespace zentrik {

// Steps on, or back if negative, as far as the run goes; status panel 5 says where in the run that is.
void travelBy(Editor& ed, History& history, Timeline& timeline, int steps);

// Undoes or redoes: way is undoLast or redoNext. Where that leads back into a run, the run is there again.
void retrace(Editor& ed, History& history, Timeline& timeline, void (*way)(Editor&, History&));

// To be called once an event has begun, and after it, so that the run knows what changed the model besides
// its steps.
void noteBegin(Timeline& timeline, const History& history);
void followEvent(Timeline& timeline, const Editor& ed, const History& history, Event event);

}  // namespace zentrik
