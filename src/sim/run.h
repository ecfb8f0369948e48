#pragma once
// Run control: the animation timer's tick, start and stop, single steps, and the snapshot.

#include "model/editor.h"

namespace zentrik {

class Host;

void Timer1_Timer(Editor& ed);
// One step; one that cannot go on stops the animation and says why in status panel 5.
void stepOrStop(Editor& ed);

// Makes the timer and the tool tip follow the start button.
void StartStop(Editor& ed);
// Releases the start button and stops the timer if the animation runs.
void stopAnimation(Editor& ed);

// The buttons start (after it changed its state), single and reposition.
void startClicked(Editor& ed, Host& host);
void singleClicked(Editor& ed, Host& host);
void repositionClicked(Editor& ed, Host& host);

void mnuSetZero_Click(Editor& ed, Host& host);

void SaveState(Editor& ed);
void RestoreState(Editor& ed);

}  // namespace zentrik
