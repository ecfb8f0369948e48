#include "scenes/visit.h"

#include "effects/shooter.h"
#include "library/library.h"
#include "model/store.h"
#include "rig.h"
#include "settings/settings.h"
#include "sim/run.h"

#include <cmath>
#include <stdexcept>

namespace zentrik::scenes {

namespace {

struct EmptyStore : SettingsStore {
    std::optional<std::string> read(const std::string&) override { return {}; }
    void write(const std::string&, const std::string&) override {}
};

bool asksFor(const Editor& ed, const char* option) {
    return ed.ProjectTitle.find(option) != std::string::npos;
}

void fireFirstShooter(Editor& ed) {
    ScriptedHost host;
    for (std::int32_t i = 1; i <= lastNode(ed); ++i) {
        if (!nodeAt(ed, i).Used || nodeAt(ed, i).Trigger == none) continue;
        ed.SelectedNode = i;
        return mnuFire_Click(ed, host);
    }
}

}  // namespace

Editor openSample(const std::string& programFolder, const std::string& name, Size scene,
                  const std::vector<std::string>& spriteNames) {
    Editor ed;
    EmptyStore store;
    Placement placement;
    ScriptedHost host;
    getSettings(ed, placement, store);
    ed.sceneWidth = scene.width;
    ed.sceneHeight = scene.height;
    ed.programFolder = programFolder;
    ed.spriteNames = spriteNames;
    OpenFile(ed, host, name);
    if (!host.transcript.empty()) throw std::runtime_error(host.transcript);
    if (asksFor(ed, "Ignore Barriers")) ed.marks.mnuIgnoreBarriers = false;
    if (asksFor(ed, "Display Sprites")) ed.buttons.sprite = true;
    if (asksFor(ed, "Show Links")) ed.buttons.line = false;
    return ed;
}

void start(Editor& ed) {
    ScriptedHost host;
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
