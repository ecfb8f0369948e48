#include "scenes/visit.h"

#include "effects/shooter.h"
#include "host/quiet_host.h"
#include "library/library.h"
#include "model/store.h"
#include "settings/first_run.h"
#include "sim/run.h"

#include <cmath>
#include <stdexcept>

namespace zentrik::scenes {

namespace {

bool asksFor(const Editor& ed, const char* option) {
    return ed.ProjectTitle.find(option) != std::string::npos;
}

void fireFirstShooter(Editor& ed) {
    QuietHost host;
    for (std::int32_t i = 1; i <= lastNode(ed); ++i) {
        if (!nodeAt(ed, i).Used || nodeAt(ed, i).Trigger == none) continue;
        ed.SelectedNode = i;
        return mnuFire_Click(ed, host);
    }
}

}  // namespace

Editor openSample(const std::string& programFolder, const std::string& name, Size scene,
                  const std::vector<std::string>& spriteNames) {
    QuietHost host;
    Editor ed = firstRun();
    ed.sceneWidth = scene.width;
    ed.sceneHeight = scene.height;
    ed.programFolder = programFolder;
    ed.spriteNames = spriteNames;
    OpenFile(ed, host, name);
    if (UsedNodes(ed) == 0) throw std::runtime_error(name + " cannot be opened");
    if (asksFor(ed, "Ignore Barriers")) ed.marks.mnuIgnoreBarriers = false;
    if (asksFor(ed, "Display Sprites")) ed.buttons.sprite = true;
    if (asksFor(ed, "Show Links")) ed.buttons.line = false;
    return ed;
}

void start(Editor& ed) {
    QuietHost host;
    ed.buttons.start = true;
    startClicked(ed, host);
}

void tickSample(Editor& ed) {
    constexpr double pause = 20;  // time units between two shots
    const double before = std::floor(ed.AnimationTime / pause);
    Timer1_Timer(ed);
    if (std::floor(ed.AnimationTime / pause) > before) fireFirstShooter(ed);
}

}  // namespace zentrik::scenes
