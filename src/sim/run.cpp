#include "sim/run.h"

#include "basics/numbers.h"
#include "model/redraw.h"
#include "model/store.h"
#include "sim/step.h"

namespace zentrik {

void countCycle(Editor& ed) {
    // Counts up for as long as the program runs, so it must survive its own end.
    ed.Cycles = static_cast<std::int32_t>(static_cast<std::uint32_t>(ed.Cycles) + 1);
}

void Timer1_Timer(Editor& ed) {
    countCycle(ed);
    panel(ed, 3) = "Cycles: " + std::to_string(ed.Cycles);
    stepOrStop(ed);
    if (ed.SingleStep) ed.Timer1.enabled = false;
}

std::string CalculatePositions(Editor& ed) {
    const StepReport made = advance(ed);
    // The strip is left out once in a hundred steps.
    if (made.clock && toInt(static_cast<double>(*made.clock) / stepSize(ed)) % 100 != 0)
        redrawPhaseManager(ed, *made.clock);
    if (made.distance) panel(ed, 5) = realText(*made.distance);
    if (made.dot) ed.pathDots.push_back(*made.dot);
    if (!made.problem.empty()) return made.problem;
    if (made.anyRemoved) showCounts(ed);
    showScene(ed, -1, -1);
    return {};
}

void stepOrStop(Editor& ed) {
    if (const std::string problem = CalculatePositions(ed); !problem.empty()) stopFor(ed, problem);
}

void stopFor(Editor& ed, const std::string& problem) {
    ed.buttons.start = false;
    StartStop(ed);
    panel(ed, 5) = problem + ": animation stopped!";
    redrawScene(ed);
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
    redrawScene(ed);
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
    redrawScene(ed);
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
