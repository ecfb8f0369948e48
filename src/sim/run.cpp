#include "sim/run.h"

#include "model/redraw.h"
#include "model/store.h"
#include "sim/step.h"

namespace zentrik {

void Timer1_Timer(Editor& ed) {
    // Counts up for as long as the program runs, so it must survive its own end.
    ed.Cycles = static_cast<std::int32_t>(static_cast<std::uint32_t>(ed.Cycles) + 1);
    panel(ed, 3) = "Cycles: " + std::to_string(ed.Cycles);
    stepOrStop(ed);
    if (ed.SingleStep) ed.Timer1.enabled = false;
}

void stepOrStop(Editor& ed) {
    const std::string problem = CalculatePositions(ed);
    if (problem.empty()) return;
    ed.buttons.start = false;
    StartStop(ed);
    panel(ed, 5) = problem + ": animation stopped!";
    showClock(ed);
    DisplayScene(ed, -1, -1);
}

void StartStop(Editor& ed) {
    ed.Timer1.enabled = ed.buttons.start;
    ed.tips.start = ed.buttons.start ? "Stop" : "Start";
    if (ed.buttons.start) ed.SingleStep = false;
}

void stopAnimation(Editor& ed) {
    if (!ed.buttons.start) return;
    ed.buttons.start = false;
    StartStop(ed);
}

void startClicked(Editor& ed, Host&) {
    if (!ed.Timer1.enabled) SaveState(ed);
    ed.InitialVelocityPending = true;
    StartStop(ed);
    DisplayScene(ed, -1, -1);
}

void singleClicked(Editor& ed, Host&) {
    stopAnimation(ed);
    ed.SingleStep = true;
    ed.Timer1.enabled = true;
}

void repositionClicked(Editor& ed, Host&) {
    clearPath(ed);
    RestoreState(ed);
    ed.AnimationTime = 0;
    showCounts(ed);
    DisplayScene(ed, -1, -1);
}

void mnuSetZero_Click(Editor& ed, Host&) {
    ed.AnimationTime = 0;
    redrawPhaseManager(ed, 0);
    showClock(ed);
}

void SaveState(Editor& ed) {
    ed.SavedNodes = ed.Nodes;
    ed.SavedLinks = ed.Links;
}

void RestoreState(Editor& ed) {
    ++ed.replacedCount;
    NoSelections(ed);
    ed.Nodes = ed.SavedNodes;
    ed.Links = ed.SavedLinks;
}

}  // namespace zentrik
