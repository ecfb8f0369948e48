#pragma once
// Run control: the animation timer's tick, start and stop, single steps, and the snapshot.

#include "model/editor.h"

#include <string>

namespace zentrik {

class Host;

void Timer1_Timer(Editor& ed);
// Counts a tick; at every tenth the step draws random colours anew.
void countCycle(Editor& ed);
// One step and what is seen of it: clock, counts, path, phase strip and scene. Gives why it was taken back,
// if it was; the scene is then left to the caller.
std::string CalculatePositions(Editor& ed);
// The same; one that cannot go on stops the animation and says why in status panel 5.
void stepOrStop(Editor& ed);
// Stops the animation, and says in status panel 5 why.
void stopFor(Editor& ed, const std::string& problem);

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
