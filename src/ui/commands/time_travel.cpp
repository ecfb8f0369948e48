#include "ui/commands/time_travel.h"

#include "model/redraw.h"
#include "model/store.h"

#include <utility>

namespace zentrik {

void travelBy(Editor& ed, History& history, Timeline& timeline, int steps) {
    if (ed.Timer1.enabled) return;
    if (timeline.run.moments.empty()) {
        panel(ed, 5) = "Start the animation first: there is no run to go through.";
        return;
    }
    if (history.going != History::Going::travel) {
        closeStep(history, ed);
        noteBegin(timeline, history);
        beginTravel(history, ed);
    }
    travel(timeline, ed, steps);
    if (!nodeExists(ed, ed.SelectedNode) || !nodeAt(ed, ed.SelectedNode).Used) ed.SelectedNode = none;
    if (!linkExists(ed, ed.SelectedLink) || !linkAt(ed, ed.SelectedLink).Used) ed.SelectedLink = none;
    ed.HoverNode = ed.HoverLink = none;
    ed.DrawMode = ed.DrawMode && ed.SelectedNode != none;
    showCounts(ed);
    panel(ed, 3) = "Cycles: " + std::to_string(ed.Cycles);
    redrawPhaseManager(ed, ed.AnimationTime);
    redrawScene(ed);
    panel(ed, 5) = "Step " + std::to_string(timeline.at) + " of " + std::to_string(timeline.run.last);
}

void noteBegin(Timeline& timeline, const History& history) {
    if (history.going == History::Going::nothing) noteState(timeline, history.state);
}

void followEvent(Timeline& timeline, const Editor& ed, const History& history, Event event) {
    const bool replaced = std::exchange(timeline.replacedCount, ed.replacedCount) != ed.replacedCount;
    if (!ed.Timer1.enabled) timeline.running = false;
    if (event == Event::timer) return;
    if (!history.changed) return;
    if (replaced)
        findState(timeline, history.state);
    else
        noteEdit(timeline);
}

void retrace(Editor& ed, History& history, Timeline& timeline, void (*way)(Editor&, History&)) {
    closeStep(history, ed);
    noteBegin(timeline, history);
    way(ed, history);
    findState(timeline, history.state);
}

}  // namespace zentrik
