#pragma once
#include "app/boxes/desktop_host.h"
#include "app/views/views.h"
#include "history/history.h"
#include "history/timeline.h"
#include "model/editor.h"
#include "model/pointing.h"
#include "ui/commands/time_travel.h"
#include "ui/undo.h"

#include <functional>
#include <string>

namespace zentrik {

// What the window works on, and how whatever a person or a timer starts comes to it: never while a box is
// open, framed for undo and for the run, and followed by showing the record.
class Events {
public:
    explicit Events(QWidget& window) : host(window) {}

    Editor ed;
    History history;
    Timeline timeline;
    DesktopHost host;

    // To be set before the first event.
    DrawingView *scene = nullptr, *strip = nullptr;
    std::function<void()> showRecord, commandDone;

    // A step that can be undone; it is called `what` where it does not say itself what it did.
    template <class Procedure>
    void run(Event event, const std::string& what, Procedure procedure) {
        follow([&](Editor&, Host&) {
            beginEvent(history, ed, event);
            noteBegin(timeline, history);
            procedure(ed, host);
            endEvent(history, ed, event, what);
            followEvent(timeline, ed, history, event);
        });
    }

    template <class Procedure>
    void perform(const std::string& what, Procedure procedure) {
        run(Event::command, what, procedure);
        commandDone();
    }

    // What changes nothing that undo knows.
    template <class Procedure>
    void follow(Procedure procedure) {
        if (host.isAsking()) return;
        procedure(ed, host);
        scene->recordChanged();
        strip->recordChanged();
        showRecord();
    }

    // What the pointer does that drags nothing.
    template <class Procedure>
    void point(Procedure procedure) {
        if (host.isAsking()) return;
        const Pointing pointing(ed);
        procedure(ed, host);
        pointing.end(ed, scene->isCurrent(), strip->isCurrent());
        showRecord();
    }

    void undo() { take(undoLast); }
    void redo() { take(redoNext); }

    // Steps on through the run, or back if negative.
    void travel(int steps) {
        follow([&](Editor&, Host&) { travelBy(ed, history, timeline, steps); });
    }

private:
    void take(void (*way)(Editor&, History&)) {
        follow([&](Editor&, Host&) { retrace(ed, history, timeline, way); });
        commandDone();
    }
};

}  // namespace zentrik
