#include "display/scene.h"

#include "display/canvas/lettering.h"
#include "display/lines.h"
#include "display/nodes.h"
#include "display/overlays.h"
#include "display/title.h"

namespace zentrik {

namespace {

void drawPage(const Canvas& canvas, const TextPage& page, std::int32_t paper) {
    for (const TextRun& run : page.runs)
        lettering(canvas.ratio, run.colour, paper)
            .print(canvas.painter, {canvas.pixels(run.x), canvas.pixels(run.y)}, run.text);
}

bool spritesShown(const Editor& ed) {
    return ed.buttons.sprite && (ed.drawnRunning || ed.marks.mnuAllowSprites);
}

}  // namespace

void drawUnderMarks(const Canvas& canvas, const Editor& ed, Ground ground) {
    if (ground == Ground::painted) canvas.painter.fillRect(canvas.frame, colourOf(ed.BackColor));
    if (ed.sceneBlank) return;
    if (!ed.drawnRunning || ed.marks.mnuAllowGrid) DisplayGrid(canvas, ed);
    if (ed.buttons.line) drawLinks(canvas, ed);
    if (ed.buttons.activeline) drawAnimatedLinks(canvas, ed);
    if (ed.buttons.ball) drawNodes(canvas, ed);
}

void drawMarksAndBand(const Canvas& canvas, const Editor& ed) {
    if (ed.sceneBlank) return;
    drawMarks(canvas, ed);
    drawRubberBand(canvas, ed);
}

void drawOverMarks(const Canvas& canvas, const Editor& ed, const SpritePictures& sprites) {
    if (ed.sceneBlank) return;
    const double lineHeight = sceneLineHeight();
    const TextPage overlays = overlayPage(ed, lineHeight);
    drawPage(canvas, overlays, ed.BackColor);
    if (ed.marks.mnuDisplayTitle) drawTitle(canvas, ed, overlays.colour);
    if (spritesShown(ed)) ShowImages(canvas, ed, sprites);
    if (ed.instructionsShown) drawPage(canvas, instructionsPage(ed, lineHeight), ed.BackColor);
}

bool anythingOverMarks(const Editor& ed) {
    const Buttons& pressed = ed.buttons;
    return pressed.numbers || pressed.data || pressed.simple || ed.marks.mnuDisplayTitle ||
           spritesShown(ed) || ed.instructionsShown;
}

void drawScene(QPainter& painter, const Editor& ed, const SpritePictures& sprites, Ground ground) {
    const Canvas canvas(painter, ed.sceneWidth, ed.sceneHeight);
    drawUnderMarks(canvas, ed, ground);
    drawMarksAndBand(canvas, ed);
    drawOverMarks(canvas, ed, sprites);
}

}  // namespace zentrik
