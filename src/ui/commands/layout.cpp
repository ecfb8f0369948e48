#include "ui/commands/layout.h"

#include "model/redraw.h"

#include <algorithm>

namespace zentrik {

void Form_Resize(Editor& ed, std::int32_t SW, std::int32_t SH) {
    ed.windowWidth = SW;
    ed.windowHeight = SH;
    layOut(ed);
}

void layOut(Editor& ed) {
    const std::int32_t SH = ed.windowHeight;
    const std::int32_t width = std::max(ed.windowWidth - 120, 0);
    const std::int32_t phase = ed.phaseHeight, sprites = spriteStripHeight, bar = scrollBarHeight;
    const bool withSprites = ed.marks.mnuDisplayBrowser;
    const bool withPhase = ed.marks.mnuDisplayAngleManager;

    std::int32_t sceneHeight = SH - 1900;
    std::int32_t barTop = SH - 1410;
    if (withSprites && withPhase) {
        sceneHeight = SH - phase - sprites - bar - 1860;
        barTop = SH - phase - bar - 1200;
    } else if (withSprites) {
        sceneHeight = SH - sprites - 2060;
    } else if (withPhase) {
        sceneHeight = SH - phase - 1940;
    }
    ed.sceneWidth = width;
    ed.sceneHeight = std::max(sceneHeight, 0);
    ed.phaseWidth = width;
    ed.layout.picS = {sceneLeft, sceneTop, ed.sceneWidth, ed.sceneHeight};
    ed.layout.picPhase = {sceneLeft, SH - phase - 1200, width, phase};
    ed.layout.HScroll1 = {sceneLeft, barTop, width, bar};
    ed.layout.Frame1 = {sceneLeft, barTop - 720, width, sprites};

    redrawStripAndScene(ed);
    panel(ed, 5) = "H: " + std::to_string(ed.sceneHeight) + "     W: " + std::to_string(ed.sceneWidth);
}

}  // namespace zentrik
