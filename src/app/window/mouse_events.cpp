#include "app/window/mouse_events.h"

#include "edit/mouse.h"
#include "edit/phase_mouse.h"

namespace zentrik {

const MouseProcedures sceneMouse{.dragged = "Node moved",
                                 .press = picS_MouseDown,
                                 .drag = [](Editor& ed, float x, float y) { picS_MouseMove(ed, 0, x, y); },
                                 .release = picS_MouseUp,
                                 .twice = picS_DblClick};

const MouseProcedures stripMouse{.dragged = "Phase turned",
                                 .press = picPhase_MouseDown,
                                 .drag = picPhase_MouseMove,
                                 .release = [](Editor& ed, int, float, float) { picPhase_MouseUp(ed); },
                                 .twice = picPhase_DblClick};

MouseCalls mouseEvents(Events& events, const MouseProcedures& procedures) {
    const auto run = [&events, &procedures](auto procedure) {
        events.run(Event::mouse, procedures.dragged, procedure);
    };
    const auto drags = [&ed = events.ed] { return ed.MouseIsDown || ed.PhaseDragging; };
    const auto release = [run, &procedures](int button, float x, float y) {
        run([&](Editor& ed, Host&) { procedures.release(ed, button, x, y); });
    };
    MouseCalls mouse;
    mouse.down = [run, &procedures](int button, float x, float y) {
        run([&](Editor& ed, Host&) { procedures.press(ed, button, x, y); });
    };
    mouse.move = [run, drags, release, &events, &procedures](float x, float y, bool leftHeld) {
        const auto move = [&](Editor& ed, Host&) { procedures.drag(ed, x, y); };
        if (drags() && !leftHeld)
            release(leftButton, x, y);  // a box, a hidden strip or another window took it
        if (drags())
            run(move);
        else
            events.point(move);
    };
    mouse.up = release;
    mouse.doubleClick = [&events, &procedures] {
        events.run(Event::mouse, "Animator switched", [&](Editor& ed, Host&) { procedures.twice(ed); });
    };
    return mouse;
}

}  // namespace zentrik
