#pragma once
// Undo and redo: a record of steps, and the procedures that keep it. A step is what one event changed;
// a drag from press to release is one, and so is what a run moved. Saving is none.
//
// The window calls beginEvent before and endEvent after everything a person or a timer starts.

#include "history/steps.h"

#include <string>

namespace zentrik {

enum class Event {
    command,  // a menu entry, a button, a choice in a list
    mouse,    // a press, a drag, a release, a double click
    timer,
};

// Forgets all steps; the model as it stands is the first state, and counts as filed.
void startHistory(History& history, const Editor& ed);

void beginEvent(History& history, const Editor& ed, Event event);
// what: names the step where the event itself did not say in status panel 5 what it did.
void endEvent(History& history, const Editor& ed, Event event, const std::string& what);

// The model is taken to another moment of its run; where it stays is a step. Nothing may be going on.
void beginTravel(History& history, const Editor& ed);

// Makes what is going on a step, so that it can be undone.
void closeStep(History& history, const Editor& ed);
// Both take the model to another state and do nothing where there is none. Nothing may be going on.
void stepBack(History& history, Editor& ed);
void stepForth(History& history, Editor& ed);

// Whether the model is another than that in the file of the project the list names.
bool isModified(const History& history, const Editor& ed);

}  // namespace zentrik
