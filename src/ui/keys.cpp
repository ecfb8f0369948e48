#include "ui/keys.h"

#include "basics/no_doubles.h"
#include "edit/hit.h"
#include "edit/phase_mouse.h"
#include "model/readout.h"
#include "model/redraw.h"
#include "model/store.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace zentrik {

namespace {

template <void (*step)(Editor&)>
void stepNode(Editor& ed, Host&) {
    step(ed);
    if (selectedNode(ed) != nullptr) DisplayNodeData(ed, ed.SelectedNode);
    redrawScene(ed);
}

template <void (*step)(Editor&)>
void stepLink(Editor& ed, Host&) {
    step(ed);
    if (selectedLink(ed) != nullptr) DisplayLinkData(ed, ed.SelectedLink);
    redrawScene(ed);
}

template <int steps>
void chooseDisc(Editor& ed, Host&) {
    stepDisc(ed, steps);
}

template <int steps>
void turn(Editor& ed, Host&) {
    turnDisc(ed, steps);
}

constexpr KeyRow press(const char* keys, const char* effect, KeyArea area, const char* control) {
    return {keys, effect, area, KeyAct::press, control};
}
constexpr KeyRow own(const char* keys, const char* effect, KeyArea area, KeyAct act,
                     const char* control = nullptr) {
    return {keys, effect, area, act, control};
}
constexpr KeyRow go(const char* keys, const char* effect, KeyAct act, int steps) {
    return {.keys = keys, .effect = effect, .area = KeyArea::window, .act = act, .steps = steps};
}
constexpr KeyRow run(const char* keys, const char* effect, KeyArea area, const char* what, Command command,
                     const char* control = nullptr) {
    return {keys, effect, area, KeyAct::command, control, command, what};
}

using enum KeyArea;

// clang-format off
constexpr KeyRow rows[] = {
    press("Space", "starts and stops the animation", areas, "start"),
    press(".", "makes a single step", areas, "single"),
    press("Home", "resets to the last start", areas, "reposition"),
    press("Ctrl+N", "empties the scene", window, "new"),
    press("Ctrl+S", "saves the project", window, "save"),
    press("Ctrl+R", "loads the project again", window, "refresh"),
    own("Ctrl+O", "opens the list of projects", window, KeyAct::openList, "lstSaved"),
    own("Ctrl+C", "copies the selected object as project text", window, KeyAct::copy),
    own("Ctrl+V", "pastes project text at the pointer, or in the middle of the scene", window, KeyAct::paste),
    own("Ctrl+Shift+C", "copies the scene as a picture", window, KeyAct::copyPicture),
    own("Ctrl+G", "opens a plot of the run, or closes it", window, KeyAct::plot),
    own("Ctrl+Shift+G", "plots the selected node and link", window, KeyAct::plotSelected),
    own("F1", "shows this manual", window, KeyAct::help),
    own("Alt+Backspace", "takes the last change back", window, KeyAct::undo),
    own("Shift+Alt+Backspace", "brings it again", window, KeyAct::redo),
    go("Ctrl+Left", "goes a step back in the run while the animation stands", KeyAct::travel, -1),
    go("Ctrl+Right", "goes a step on", KeyAct::travel, 1),
    go("Ctrl+Shift+Left", "goes a hundred steps back", KeyAct::travel, -100),
    go("Ctrl+Shift+Right", "goes a hundred steps on", KeyAct::travel, 100),
    go("F6", "goes to the next part of the window", KeyAct::goToPart, 1),
    go("Shift+F6", "goes to the part before", KeyAct::goToPart, -1),
    own("Ctrl+Q", "closes the program", window, KeyAct::quit),
    own("Alt+Down Menu", "opens the values of a button of the property toolbar; Escape closes them", window, KeyAct::presets),
    own("Left Right Up Down", "move a pointer over the scene, from grid line to grid line while snap is pressed; with Shift ten times as far", scene, KeyAct::pointer),
    own("Return", "does what a left click does at the pointer", scene, KeyAct::pointer),
    own("Shift+Return", "does what a right click does", scene, KeyAct::pointer),
    own("Ctrl+Return", "does what a double click does", scene, KeyAct::pointer),
    own("Menu", "offers to plot the selected node or link, as a right click with Ctrl does with the one under it", scene, KeyAct::pointer),
    own("Alt+Left Alt+Right Alt+Up Alt+Down", "drag the selected node", scene, KeyAct::pointer),
    run("N", "selects the next node, and brings the pointer to it", scene, "Next Node", stepNode<NextNode>, "nextnode"),
    run("Shift+N", "selects the node before", scene, "Previous Node", stepNode<PreviousNode>),
    run("L", "selects the next link, and brings the pointer to its middle", scene, "Next Link", stepLink<NextLink>, "nextlink"),
    run("Shift+L", "selects the link before", scene, "Previous Link", stepLink<PreviousLink>),
    run("Left", "chooses the disc of the next smaller phase", strip, "Disc chosen", chooseDisc<-1>),
    run("Right", "chooses the disc of the next larger phase", strip, "Disc chosen", chooseDisc<1>),
    run("Shift+Left", "turns the chosen disc's phase back, by 5 degrees or to the grid while snap is pressed", strip, "Phase turned", turn<-1>),
    run("Shift+Right", "turns it on", strip, "Phase turned", turn<1>),
};
// clang-format on
static_assert(!anyShared(rows,
                         [](const KeyRow& row) { return std::pair(std::string_view(row.keys), row.area); }),
              "two rows share their keys in an area");

}  // namespace

std::span<const KeyRow> keyRows() { return rows; }

const char* keyFor(KeyAct act) {
    return std::find_if(std::begin(rows), std::end(rows), [act](const KeyRow& row) { return row.act == act; })
        ->keys;
}

}  // namespace zentrik
