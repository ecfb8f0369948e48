#include "ui/commands/options.h"

#include "basics/numbers.h"
#include "edit/command.h"
#include "host/host.h"
#include "host/questions.h"
#include "model/rate.h"
#include "model/redraw.h"
#include "ui/commands/layout.h"

namespace zentrik {

namespace {

constexpr std::int32_t smallestGrid = 50;  // twips

void askColor(Editor& ed, Host& host, std::int32_t Editor::*color) {
    const std::int32_t chosen = host.SelectColor();
    if (chosen != none) ed.*color = chosen;
    redrawStripAndScene(ed);  // the strip's discs have the node colour
}

void askReal(Editor& ed, Host& host, const char* prompt, const char* title, float Editor::*value) {
    if (const auto answer = askNumber(host, prompt, title, realText(ed.*value))) ed.*value = toReal(*answer);
}

}  // namespace

void mnuResetGlobal_Click(Editor& ed, Host&) {
    ed.Gravity = 1;
    ed.Friction = 0.5F;
    ed.Viscosity = 0;
    ed.LeftWind = 0;
    ed.Bounce = 0.5F;
    ed.TimeInterval = 20;
    setRate(ed, 20);
    ed.DeltaAngle = 1;
    redrawScene(ed);
}

void mnuGridSize_Click(Editor& ed, Host& host) {
    const auto answer = askNumber(host, "Enter grid size.", "Grid Size", realText(ed.GridSize));
    const std::int32_t size = toInt(answer.value_or(0));
    if (size >= smallestGrid) ed.GridSize = static_cast<float>(size);
    redrawScene(ed);
}

void setNodeRadius(Editor& ed, std::int32_t radius) {
    ed.NodeRadius = radius;
    ed.HitRadius = toInt(radius + 30.0);
}

void mnuSetRadius_Click(Editor& ed, Host& host) {
    const auto answer =
        askNumber(host, "Enter node radius.", "Set Node Radius", std::to_string(ed.NodeRadius));
    const std::int32_t radius = toInt(answer.value_or(0));
    if (answer && radius < smallestRadius)
        refuse(ed, host, "The node radius takes " + std::to_string(smallestRadius) + " twips or more!");
    else if (answer)
        setNodeRadius(ed, radius);
    redrawScene(ed);
}

void mnuDefaultK_Click(Editor& ed, Host& host) {
    askReal(ed, host, "Enter default spring constant.", "Default Spring Constant", &Editor::DefaultLinkK);
}

void mnuDefaultForce_Click(Editor& ed, Host& host) {
    askReal(ed, host, "Enter default link force.", "Default Link Force", &Editor::DefaultLinkForce);
}

void mnuLineColor_Click(Editor& ed, Host& host) { askColor(ed, host, &Editor::LinkColor); }
void mnuNodeColor_Click(Editor& ed, Host& host) { askColor(ed, host, &Editor::NodeColor); }
void mnuBackgroundColor_Click(Editor& ed, Host& host) { askColor(ed, host, &Editor::BackColor); }

void redrawScene(Editor& ed, Host&) { redrawScene(ed); }

void redrawDrawings(Editor& ed, Host&) { redrawStripAndScene(ed); }

void layOutAgain(Editor& ed, Host&) { layOut(ed); }

void followPathMark(Editor& ed, Host& host) { host.showPathWindow(ed.marks.mnuDisplayPath); }

}  // namespace zentrik
