#include "ui/command_toolbar.h"

#include "basics/no_doubles.h"
#include "edit/hit.h"
#include "edit/objects.h"
#include "edit/transforms.h"
#include "effects/shooter.h"
#include "host/host.h"
#include "library/library.h"
#include "model/readout.h"
#include "model/redraw.h"
#include "model/store.h"
#include "sim/run.h"
#include "ui/commands/online.h"
#include "ui/commands/options.h"

#include <string_view>

namespace zentrik {

namespace {

void newClicked(Editor& ed, Host&) {
    stopAnimation(ed);
    ClearAnimation(ed);
    ed.AnimationTime = 0;
    redrawStripAndScene(ed);
}

void refreshClicked(Editor& ed, Host& host) {
    stopAnimation(ed);
    reloadProject(ed, host);
}

void redrawWhileStopped(Editor& ed, Host&) {
    if (!ed.Timer1.enabled) redrawScene(ed);
}

void deleteClicked(Editor& ed, Host& host) {
    if (ed.SelectedNode != none && ed.SelectedLink != none &&
        !host.confirm("You are about to delete BOTH a node and a link.  Proceed?", "Delete Node/Link"))
        return;
    DeleteNode(ed);
    DeleteLink(ed);
    redrawStripAndScene(ed);
    showCounts(ed);
}

// A command on the model followed by a redraw.
template <void (*change)(Editor&)>
void andRedraw(Editor& ed, Host&) {
    change(ed);
    redrawScene(ed);
}

// Stepping is selecting: without the read-out the lock and shooter buttons would still stand for the
// node before, and a click on them would do the opposite of what they show.
void nextNodeClicked(Editor& ed, Host&) {
    NextNode(ed);
    if (selectedNode(ed) != nullptr) DisplayNodeData(ed, ed.SelectedNode);
    redrawScene(ed);
}

void nextLinkClicked(Editor& ed, Host&) {
    NextLink(ed);
    if (selectedLink(ed) != nullptr) DisplayLinkData(ed, ed.SelectedLink);
    redrawScene(ed);
}

template <int columns, int rows>
void moveBy(Editor& ed, Host&) {
    moveProject(ed, columns, rows);
    redrawScene(ed);
}

void barrierClicked(Editor& ed, Host& host) {
    ConvertObjectToBarrier(ed, host);
    redrawScene(ed);
}

constexpr CommandRow button(const char* key, const char* tip, const char* icon, Command command) {
    return {key, tip, icon, ButtonStyle::button, command, nullptr};
}
constexpr CommandRow check(const char* key, const char* tip, const char* icon, bool Buttons::*pressed,
                           Command command) {
    return {key, tip, icon, ButtonStyle::check, command, pressed};
}
constexpr CommandRow line{"", "", "", ButtonStyle::separator, nullptr, nullptr};
constexpr CommandRow room{"", "", "", ButtonStyle::room, nullptr, nullptr};
constexpr Command nothing = nullptr;

// clang-format off
constexpr CommandRow rows[] = {
    line,
    button("new", "New Animation (Clear Screen)", "blank", newClicked),
    button("save", "Save Project", "save", saveProject),
    button("refresh", "Reload Animation From File", "refresh", refreshClicked),
    room, room, room, room,
    line,
    check("start", "Start Animation", "start", &Buttons::start, startClicked),
    button("reposition", "Reset To Last Start", "reset", repositionClicked),
    check("slow", "Slow Speed Animation", "slow", &Buttons::slow, nothing),
    button("single", "Single Step Animation", "one", singleClicked),
    check("animation", "Enable Link Animators", "sinewave", &Buttons::animation, nothing),
    line,
    button("delete", "Delete Selected Node/Link", "deletered", deleteClicked),
    button("duplicate", "Duplicate Selected Object", "duplicate", mnuDuplicateObject_Click),
    button("fire", "Fire Shooter", "shoot", mnuFire_Click),
    line,
    button("up", "Move Project Up", "uphand", moveBy<0, -1>),
    button("down", "Move Project Down", "downhand", moveBy<0, 1>),
    button("left", "Move Project Left", "lefthand", moveBy<-1, 0>),
    button("right", "Move Project Right", "righthand", moveBy<1, 0>),
    button("full", "Center Project", "full", andRedraw<CenterAnimation>),
    button("rotate", "Rotate Project", "rotate", andRedraw<RotateAnimation>),
    button("increase", "Enlarge Project", "plus", andRedraw<Increase>),
    button("decrease", "Shrink Project", "minus", andRedraw<Decrease>),
    button("barrier", "Convert Object to Barrier", "flagred", barrierClicked),
    line,
    button("nextnode", "Next Node", "plusn", nextNodeClicked),
    button("nextlink", "Next Link", "plusl", nextLinkClicked),
    check("data", "Display Maximum Project Information", "data", &Buttons::data, redrawWhileStopped),
    check("simple", "Display Global Settings as Single Line", "data2", &Buttons::simple, redrawWhileStopped),
    check("numbers", "Display Node/Link Numbers", "pound", &Buttons::numbers, redrawScene),
    check("draw", "Allow Draw Links", "pencil", &Buttons::draw, nothing),
    check("same", "Lock Rest Length of Links", "same", &Buttons::same, nothing),
    check("ball", "Show Nodes", "ball", &Buttons::ball, redrawScene),
    check("line", "Show Links", "link", &Buttons::line, redrawScene),
    check("activeline", "Highlight Animated LInks", "chaing", &Buttons::activeline, redrawScene),
    check("sprite", "Display Sprites", "face", &Buttons::sprite, redrawScene),
    check("grid", "Display Grid", "grid", &Buttons::grid, redrawScene),
    check("snap", "Snap to Grid", "snap", &Buttons::snap, nothing),
    line,
    button("message", "Get Zentrik Message from Server", "info", messageClicked),
    button("email", "Email Author", "email", mnuEmail_Click),
};
// clang-format on
static_assert(!anyShared(rows, [](const CommandRow& row) { return std::string_view(row.key); }) &&
                  !anyShared(rows, [](const CommandRow& row) { return row.pressed; }),
              "two buttons share a key or a state");

}  // namespace

std::span<const CommandRow> commandRows() { return rows; }

void pressCommand(Editor& ed, Host& host, const CommandRow& row) {
    if (row.pressed != nullptr) ed.buttons.*row.pressed = !(ed.buttons.*row.pressed);
    if (row.command != nullptr) row.command(ed, host);
}

}  // namespace zentrik
