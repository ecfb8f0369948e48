#pragma once
// Going through the run since the last start while the animation stands.

#include "history/history.h"
#include "history/timeline.h"

namespace zentrik {

// Steps on, or back if negative, as far as the run goes; status panel 5 says where in the run that is.
void travelBy(Editor& ed, History& history, Timeline& timeline, int steps);

// To be called after every event, so that the run knows what changed the model besides its steps.
void followEvent(Timeline& timeline, const Editor& ed, const History& history, Event event);

}  // namespace zentrik
