#include "ui/undo.h"

#include "model/readout.h"
#include "model/redraw.h"
#include "model/store.h"
#include "sim/run.h"
#include "ui/property_toolbar.h"

namespace zentrik {

namespace {

// Nothing may go on changing the model while it is taken to another state.
void bringToRest(Editor& ed, History& history) {
    stopAnimation(ed);
    ed.Timer1.enabled = false;  // a single step may be waiting for its tick
    ed.MouseIsDown = ed.PhaseDragging = ed.SelectedNodeClicked = false;
    closeStep(history, ed);
}

void showModel(Editor& ed, const std::string& text) {
    if (!nodeExists(ed, ed.SelectedNode) || !nodeAt(ed, ed.SelectedNode).Used) ed.DrawMode = false;
    if (nodeExists(ed, ed.SelectedNode)) DisplayNodeData(ed, ed.SelectedNode);
    if (linkExists(ed, ed.SelectedLink)) DisplayLinkData(ed, ed.SelectedLink);
    showGlobalValues(ed);
    showCounts(ed);
    redrawPhaseManager(ed, ed.AnimationTime);
    redrawScene(ed);
    panel(ed, 5) = text;
}

}  // namespace

void undoLast(Editor& ed, History& history) {
    bringToRest(ed, history);
    if (history.done.empty()) return showModel(ed, "There is nothing to undo.");
    stepBack(history, ed);
    showModel(ed, "Undone: " + history.undone.back().what);
}

void redoNext(Editor& ed, History& history) {
    bringToRest(ed, history);
    if (history.undone.empty()) return showModel(ed, "There is nothing to redo.");
    stepForth(history, ed);
    showModel(ed, "Redone: " + history.done.back().what);
}

}  // namespace zentrik
