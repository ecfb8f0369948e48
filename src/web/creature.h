#pragma once
// The creature of a live page: the record, its run, and what a visitor does with it. Points are in twips.

#include "history/timeline.h"
#include "model/contents.h"
#include "model/editor.h"

#include <string>
#include <string_view>

namespace zentrik {

struct Creature {
    Editor ed;
    Timeline timeline;
    Contents first;  // the model as it came
};

// Puts a project in place of the creature; gives what is wrong with its bytes, in words, and then leaves the
// creature alone. The names of sprites are known already.
std::string load(Creature& creature, std::string_view bytes);
// To be called once the settings are what they will be.
void begin(Creature& creature);

void setRunning(Creature& creature, bool on);
// A tick of the animation timer.
void tickOnce(Creature& creature);
void stepOnce(Creature& creature);
// The model as it came; the settings stay as they are, and so does what the run was.
void reset(Creature& creature);
// Stops, and takes the model to a step of its run, as far as there are any.
void goTo(Creature& creature, std::int64_t step);

void change(Creature& creature, std::size_t setting, double value);

// The pointer, with the mouse's procedures. A press takes what they find at the point, or else the nearest
// node within `reach`, since fingers are wide; at an empty place it selects nothing, and makes no node.
void pointerMoves(Creature& creature, float x, float y);
void pointerDown(Creature& creature, float x, float y, float reach);
void pointerUp(Creature& creature, float x, float y);
// The same for keys: selects the node after or before, moves the selected one.
void selectNext(Creature& creature, bool back);
void nudge(Creature& creature, float dx, float dy);

bool hasShooter(const Creature& creature);
// The selected shooter, or the one fired last, or the first.
void fire(Creature& creature);

}  // namespace zentrik
