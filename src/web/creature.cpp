#include "web/creature.h"

#include "edit/hit.h"
#include "edit/mouse.h"
#include "effects/shooter.h"
#include "host/quiet_host.h"
#include "model/readout.h"
#include "model/redraw.h"
#include "model/store.h"
#include "project/hand_over.h"
#include "sim/run.h"
#include "web/settings.h"

#include <algorithm>
#include <cmath>

namespace zentrik {

namespace {

// There is nobody to ask, and nowhere to say it.
class NobodyHost : public QuietHost {
public:
    void messageBox(const std::string&, const std::string&, BoxIcon) override {}
};
NobodyHost nobody;

bool isUsedNode(const Editor& ed, std::int32_t i) { return nodeExists(ed, i) && nodeAt(ed, i).Used; }

void dropWhatIsGone(Editor& ed) {
    if (!isUsedNode(ed, ed.SelectedNode)) ed.SelectedNode = none;
    if (!linkExists(ed, ed.SelectedLink) || !linkAt(ed, ed.SelectedLink).Used) ed.SelectedLink = none;
    ed.HoverNode = ed.HoverLink = none;
}

// The nearest used node within a square of half-side `reach`; none where there is none.
std::int32_t nearestNode(const Editor& ed, float x, float y, float reach) {
    std::int32_t nearest = none;
    double least = reach;
    forEachNode(ed, [&](std::int32_t i, const Node& node) {
        const double far =
            std::max(std::fabs(node.X - static_cast<double>(x)), std::fabs(node.Y - static_cast<double>(y)));
        if (far < least) least = far, nearest = i;
    });
    return nearest;
}

bool shoots(const Editor& ed, std::int32_t i) { return isUsedNode(ed, i) && nodeAt(ed, i).Trigger != none; }

std::int32_t firstShooter(const Editor& ed) {
    std::int32_t first = none;
    forEachNode(ed, [&](std::int32_t i, const Node& node) {
        if (first == none && node.Trigger != none) first = i;
    });
    return first;
}

void endOfEdit(Creature& creature) {
    noteEdit(creature.timeline);
    if (!creature.ed.Timer1.enabled) creature.timeline.running = false;
}

}  // namespace

std::string load(Creature& creature, std::string_view bytes) {
    Reading reading = parseProject(bytes);
    if (reading.problem)
        return (reading.problem->line == 0 ? "" : "Line " + std::to_string(reading.problem->line) + ": ") +
               reading.problem->text;
    Editor ed;
    ed.spriteNames = std::move(creature.ed.spriteNames);
    ed.buttons.draw = false;
    creature = {std::move(ed), {}, {}};
    handOver(creature.ed, nobody, *std::move(reading.project));
    return {};
}

void begin(Creature& creature) {
    creature.first = creature.ed;
    showCounts(creature.ed);
    redrawStripAndScene(creature.ed);
}

void setRunning(Creature& creature, bool on) {
    Editor& ed = creature.ed;
    if (ed.buttons.start == on) return;
    ed.buttons.start = on;
    startClicked(ed, nobody);
    endOfEdit(creature);
}

void tickOnce(Creature& creature) {
    if (!creature.ed.Timer1.enabled) return;
    tick(creature.timeline, creature.ed);
    if (!creature.ed.Timer1.enabled) creature.timeline.running = false;
}

void stepOnce(Creature& creature) {
    singleClicked(creature.ed, nobody);
    tickOnce(creature);
}

void reset(Creature& creature) {
    Editor& ed = creature.ed;
    ed.SavedNodes = creature.first.Nodes;
    ed.SavedLinks = creature.first.Links;
    repositionClicked(ed, nobody);
    ed.AnimationTime = creature.first.AnimationTime;
    ed.TimeDirection = creature.first.TimeDirection;
    ed.InitialVelocityPending = false;  // as in a page just opened
    redrawStripAndScene(ed);
    endOfEdit(creature);
}

void goTo(Creature& creature, std::int64_t step) {
    Editor& ed = creature.ed;
    setRunning(creature, false);
    travel(creature.timeline, ed, step - creature.timeline.at);
    dropWhatIsGone(ed);
    redrawModel(ed);
}

void change(Creature& creature, std::size_t setting, double value) {
    set(creature.ed, liveSettings()[setting], value);
    redrawStripAndScene(creature.ed);
    endOfEdit(creature);
}

void pointerMoves(Creature& creature, float x, float y) {
    picS_MouseMove(creature.ed, creature.ed.MouseIsDown ? leftButton : 0, x, y);
    if (creature.ed.MouseIsDown) endOfEdit(creature);
}

// A press looks at what the pointer was seen over, so the pointer comes first.
void pointerDown(Creature& creature, float x, float y, float reach) {
    Editor& ed = creature.ed;
    if (nodeAtPoint(ed, x, y) == none && linkAtPoint(ed, x, y) == none) {
        const std::int32_t near = nearestNode(ed, x, y, reach);
        if (near == none) return picS_MouseDown(ed, rightButton, x, y);
        x = static_cast<float>(nodeAt(ed, near).X);
        y = static_cast<float>(nodeAt(ed, near).Y);
    }
    picS_MouseMove(ed, 0, x, y);
    picS_MouseDown(ed, leftButton, x, y);
}

void pointerUp(Creature& creature, float x, float y) {
    if (!creature.ed.MouseIsDown) return;
    picS_MouseUp(creature.ed, leftButton, x, y);
    endOfEdit(creature);
}

void selectNext(Creature& creature, bool back) {
    Editor& ed = creature.ed;
    back ? PreviousNode(ed) : NextNode(ed);
    if (selectedNode(ed) != nullptr) DisplayNodeData(ed, ed.SelectedNode);
    DisplayScene(ed, -1, -1);
}

void nudge(Creature& creature, float dx, float dy) {
    const Node* node = selectedNode(creature.ed);
    if (!node) return;
    const auto x = static_cast<float>(node->X), y = static_cast<float>(node->Y);
    pointerDown(creature, x, y, 0);
    pointerMoves(creature, x + dx, y + dy);
    pointerUp(creature, x + dx, y + dy);
}

bool hasShooter(const Creature& creature) { return firstShooter(creature.ed) != none; }

void fire(Creature& creature) {
    Editor& ed = creature.ed;
    if (!shoots(ed, ed.SelectedNode) && !shoots(ed, ed.LastShooter)) ed.SelectedNode = firstShooter(ed);
    mnuFire_Click(ed, nobody);
    endOfEdit(creature);
}

}  // namespace zentrik
