#include "project/hand_over.h"

#include "basics/numbers.h"
#include "host/host.h"
#include "model/rate.h"
#include "model/readout.h"

#include <utility>

namespace zentrik {

namespace {

void applyGlobal(Editor& ed, Host& host, GlobalSettings global) {
    // A period the timer cannot take leaves its period unchanged, as everywhere.
    if (!isPeriod(global.timerPeriod)) global.timerPeriod = ed.timerPeriod;
    static_cast<ProjectSettings&>(ed) = global;
    if (ed.marks.mnuAutoWindowSize) {
        const double width = global.sceneWidth, height = global.sceneHeight;
        const bool wider = ed.sceneWidth < width, higher = ed.sceneHeight < height;
        if (wider || higher)
            host.resizeWindow(wider ? toInt(width + 100) : -1, higher ? toInt(height + 2000) : -1);
    }
}

}  // namespace

// The window is resized while the arrays are empty, so that laying it out touches no loaded record.
void handOver(Editor& ed, Host& host, Project project) {
    ed.ProjectTitle = std::move(project.title);
    ed.Nodes.assign(1, Node{});
    ed.Links.assign(1, Link{});
    if (project.global) applyGlobal(ed, host, *project.global);
    for (Node& node : project.Nodes) node.SpriteIndex = spriteEntryOf(ed, node.Sprite);
    ed.Nodes = std::move(project.Nodes);
    ed.Links = std::move(project.Links);
}

}  // namespace zentrik
