#include "model/redraw.h"

#include "basics/angles.h"
#include "basics/numbers.h"
#include "model/grid.h"
#include "model/phase_axis.h"
#include "model/readout.h"
#include "model/shooter_aim.h"
#include "model/store.h"

#include <algorithm>

namespace zentrik {

namespace {

// Status panel 1 shows where the last shooter aims.
void showAim(Editor& ed) {
    const auto aims = [&](const Node& node) {
        return node.Used && takesAim(node) && nodeExists(ed, node.Trigger);
    };
    const auto last = std::find_if(ed.Nodes.rbegin(), ed.Nodes.rend() - 1, aims);
    if (last != ed.Nodes.rend() - 1) panel(ed, 1) = fixedText(barrelAngle(ed, *last) * radiansToDegrees, 1);
}

}  // namespace

void DisplayScene(Editor& ed, float PX, float PY) {
    if (ed.buttons.ball) lockTriggers(ed);
    showScene(ed, PX, PY);
}

void redrawScene(Editor& ed) { DisplayScene(ed, -1, -1); }

void showScene(Editor& ed, float PX, float PY) {
    if (ed.buttons.ball) showAim(ed);
    ed.rubberBand.reset();
    if (PX >= 0 && PY >= 0 && ed.DrawMode && ed.SelectedNode != none)
        ed.rubberBand = PointF{SnapToGrid(ed, PX), SnapToGrid(ed, PY)};
    if (ed.AnimationTime == 0) redrawPhaseManager(ed, ed.AnimationTime);
    ed.linkControls = ed.SelectedLink != none;
    ed.nodeControls = ed.SelectedNode != none;
    showSelectedStates(ed);
    showClock(ed);
    ed.drawnRunning = ed.Timer1.enabled;
    ed.sceneBlank = false;
    ed.instructionsShown = false;
    ed.sceneStale = true;
}

void DrawPhaseManager(Editor& ed, float time) {
    std::array<std::int32_t, 361> stack{};  // discs already laid out at each whole degree
    const double width = ed.phaseWidth;
    forEachLink(ed, [&](std::int32_t, Link& link) {
        if (!link.Animator) return;
        link.DiscX = toInt(link.Angle * phaseAxisLength * width / 360 + phaseAxisLeft * width);
        auto& height = stack[static_cast<std::size_t>(std::clamp(toInt(link.Angle), 0, 360))];
        link.DiscY = height * nextDisc + firstDisc;
        ++height;
    });
    ed.phaseShift = toReal(static_cast<double>(ed.DeltaAngle) * time);
    ed.phaseStale = true;
}

void redrawPhaseManager(Editor& ed, float time) {
    if (ed.marks.mnuDisplayAngleManager) DrawPhaseManager(ed, time);
}

void redrawStripAndScene(Editor& ed) {
    redrawPhaseManager(ed, ed.AnimationTime);
    redrawScene(ed);
}

void redrawModel(Editor& ed) {
    showCounts(ed);
    redrawStripAndScene(ed);
}

void DisplayOnscreenInstructions(Editor& ed) {
    ed.instructionsShown = true;
    ed.sceneStale = true;
}

void showClock(Editor& ed) { panel(ed, 4) = "Time: " + clockText(ed.AnimationTime); }

}  // namespace zentrik
