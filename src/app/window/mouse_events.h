#pragma once
#include "app/views/mouse_calls.h"
#include "app/window/events.h"

namespace zentrik {

// What the pointer does in a drawing area; places in twips.
struct MouseProcedures {
    const char* dragged;  // what the step is called that a drag makes
    void (*press)(Editor& ed, int button, float x, float y);
    void (*drag)(Editor& ed, float x, float y);
    void (*release)(Editor& ed, int button, float x, float y);
    void (*twice)(Editor& ed);
};

// The calls that run them as events of the window, which `events` and `procedures` must outlive.
MouseCalls mouseEvents(Events& events, const MouseProcedures& procedures);

extern const MouseProcedures sceneMouse, stripMouse;

}  // namespace zentrik
