// Whatever was read can be stepped, painted with everything shown, saved and read again.

#include "display/phase_strip.h"
#include "display/scene.h"
#include "loaded.h"
#include "model/invariants.h"
#include "model/redraw.h"
#include "model/store.h"
#include "sim/run.h"

#include <QGuiApplication>
#include <QImage>
#include <algorithm>
#include <cstdio>

namespace {

using namespace zentrik;

constexpr std::size_t mostRecords = 200;  // more would only be slower

void mustBeSound(const Editor& ed) {
    const std::string broken = brokenRule(ed);
    if (broken.empty()) return;
    std::fprintf(stderr, "%s\n", broken.c_str());
    std::abort();
}

void showEverything(Editor& ed) {
    for (bool Buttons::*shown : {&Buttons::data, &Buttons::simple, &Buttons::numbers, &Buttons::activeline,
                                 &Buttons::sprite, &Buttons::grid, &Buttons::animation})
        ed.buttons.*shown = true;
    ed.marks.mnuDisplayTitle = ed.marks.mnuDisplayAngleManager = ed.marks.mnuAllowGrid = true;
    ed.sceneWidth = std::clamp(ed.sceneWidth, 1500, 6000);
    ed.sceneHeight = std::clamp(ed.sceneHeight, 1500, 4500);
    ed.phaseWidth = ed.sceneWidth;
    ed.timerPeriod = std::max(ed.timerPeriod, 1);  // the library refuses others
    if (lastNode(ed) > 0) ed.SelectedNode = ed.HoverNode = 1;
    if (lastLink(ed) > 0) ed.SelectedLink = ed.HoverLink = ed.SelectedAnimatorLink = 1;
}

void paint(const Editor& ed) {
    QImage image(ed.sceneWidth / 15, ed.sceneHeight / 15, QImage::Format_RGB32);
    QPainter painter(&image);
    drawScene(painter, ed, {});
    drawPhaseStrip(painter, ed);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Reading reading = parseProject({reinterpret_cast<const char*>(data), size});
    if (!reading.project) return 0;
    if (std::max(reading.project->Nodes.size(), reading.project->Links.size()) > mostRecords) return 0;
    Editor ed = editorWith(std::move(*reading.project));
    ed.marks.mnuWalls = ed.marks.mnuCeiling = size % 2 == 0;
    ed.marks.mnuReverseModel = size % 3 == 0;
    ed.marks.mnuUseDirectional = size % 5 == 0;
    showEverything(ed);
    redrawScene(ed);
    ed.buttons.start = ed.Timer1.enabled = ed.InitialVelocityPending = true;
    for (int step = 0; step < 50 && ed.Timer1.enabled; ++step) {
        Timer1_Timer(ed);
        mustBeSound(ed);
    }
    paint(ed);
    const Project again = readOwn(projectBytes(ed));
    if (again.Nodes.size() != ed.Nodes.size() || again.Links.size() != ed.Links.size()) std::abort();
    return 0;
}
