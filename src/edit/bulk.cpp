#include "edit/bulk.h"

#include "basics/no_doubles.h"
#include "basics/numbers.h"
#include "edit/command.h"
#include "host/host.h"
#include "host/questions.h"
#include "model/readout.h"
#include "model/redraw.h"
#include "model/store.h"

#include <cassert>
#include <string>

namespace zentrik {

namespace {

enum class Scope { object, all };
enum class Deselect { nothing, links, everything };

struct BulkCommand {
    std::string_view name;  // of the menu entry
    void (*node)(Node&, Scope) = nullptr;
    void (*link)(Link&, float value) = nullptr;
    float Editor::*setting = nullptr;  // default of the value; where there is one, messages go on "VALUE !"
    const char* prompt = nullptr;      // asks for another value first
    const char* title = nullptr;
    Deselect deselect = Deselect::nothing;
    bool redrawStrip = false;
    std::string_view object, all;  // what the status bar says
};

// All nodes lose the forces of the step before, too.
void clearVelocity(Node& node, Scope scope) {
    node.Vx = node.Vy = 0;
    if (scope == Scope::all) node.Fx = node.Fy = 0;
}

void setK(Link& link, float value) { link.k = value; }
void setForce(Link& link, float value) { link.Force = value; }
void freeLink(Link& link, float) { link.Used = false; }

constexpr auto linkK = &Editor::DefaultLinkK, linkForce = &Editor::DefaultLinkForce;

// clang-format off
constexpr BulkCommand commands[] = {
    {.name = "mnuResetMass", .node = [](Node& n, Scope) { n.Mass = 1; },
     .object = "Object nodes masses reset to 1!", .all = "All node masses reset to 1!"},
    {.name = "mnuResetGravity", .node = [](Node& n, Scope) { n.Gravity = 1; },
     .object = "Object node gravitational forces reset to 1!", .all = "All node gravitational forces reset to 1!"},
    {.name = "mnuResetRotationalForces", .node = [](Node& n, Scope) { n.Rotate = 0; },
     .object = "Object node rotational forces reset to 0!", .all = "All node rotational forces reset to 0!"},
    {.name = "mnuResetInitial", .node = [](Node& n, Scope) { n.Vxo = n.Vyo = 0; },
     .object = "Object node initial velocities reset to 0!", .all = "All node initial velocities reset to 0!"},
    {.name = "mnuResetVelocity", .node = clearVelocity,
     .object = "Object node velocities reset to 0!", .all = "All node velocities reset to 0!"},
    {.name = "mnuResetSprites", .node = [](Node& n, Scope) { n.Sprite = noSprite, n.SpriteIndex = 0; },
     .object = "Object node sprites reset to <none>!", .all = "All node sprites reset to <none>!"},
    {.name = "mnuUnlockAll", .node = [](Node& n, Scope) { n.Locked = false; },
     .object = "Object nodes unlocked!", .all = "All nodes unlocked!"},
    {.name = "mnuLockAll", .node = [](Node& n, Scope) { n.Locked = true; },
     .object = "Object nodes locked!", .all = "All nodes locked!"},
    {.name = "mnuClearAnimators", .link = [](Link& l, float) { l.Animator = false; }, .redrawStrip = true,
     .object = "Object link animators reset!", .all = "All link animators reset!"},
    {.name = "mnuResetK", .link = setK, .setting = linkK, .redrawStrip = true,
     .object = "Object link k's reset to ", .all = "All link k's reset to "},
    {.name = "mnuResetAngle", .link = [](Link& l, float) { l.Angle = 0; }, .redrawStrip = true,
     .object = "Object link phase angles set to 0!", .all = "All link phase angles set to 0!"},
    {.name = "mnuResetForce", .link = setForce, .setting = linkForce, .redrawStrip = true,
     .object = "Object link animator forces reset to ", .all = "All link animator forces reset to "},
    {.name = "mnuResetBarriers", .link = [](Link& l, float) { l.Barrier = false; }, .redrawStrip = true,
     .object = "Object link barriers reset!", .all = "All link barriers reset!"},
    {.name = "mnuSetLinkK", .link = setK, .setting = linkK, .prompt = "Enter value for link k's:",
     .title = "Set All Link k's", .redrawStrip = true,
     .object = "Object link k's set to ", .all = "All link k's set to "},
    {.name = "mnuDoubleK", .link = [](Link& l, float) { l.k = toReal(2.0 * l.k); }, .redrawStrip = true,
     .object = "Object link k's doubled!", .all = "All link k's doubled!"},
    {.name = "mnuHalfK", .link = [](Link& l, float) { l.k /= 2; }, .redrawStrip = true,
     .object = "Object link k's halved!", .all = "All link k's halved!"},
    {.name = "mnuSetLinkF", .link = setForce, .setting = linkForce, .prompt = "Enter value for link f's:",
     .title = "Set All link f's", .redrawStrip = true,
     .object = "Object link f's set to ", .all = "All link f's set to "},
    {.name = "mnuDoubleF", .link = [](Link& l, float) { l.Force = toReal(2.0 * l.Force); },
     .object = "Object link animator forces doubled!", .all = "All link animator forces doubled!"},
    {.name = "mnuHalveF", .link = [](Link& l, float) { l.Force /= 2; }, .redrawStrip = true,
     .object = "Object link animator forces halved!", .all = "All link animator forces halved!"},
    {.name = "mnuRemoveNodes", .node = [](Node& n, Scope) { n.Used = false; }, .link = freeLink,
     .deselect = Deselect::everything, .redrawStrip = true,
     .object = "Object nodes removed!", .all = "All nodes removed!"},
    {.name = "mnuRemoveLinks", .link = freeLink, .deselect = Deselect::links, .redrawStrip = true,
     .object = "Object links removed!", .all = "All links removed!"},
};
// clang-format on
static_assert(!anyShared(commands, [](const BulkCommand& row) { return row.name; }));

const BulkCommand& command(std::string_view name) {
    const auto found = std::find_if(std::begin(commands), std::end(commands),
                                    [name](const BulkCommand& row) { return row.name == name; });
    assert(found != std::end(commands));
    return *found;
}

void change(Editor& ed, const BulkCommand& row, Scope scope, float value) {
    const bool all = scope == Scope::all;
    if (row.link)
        for (std::int32_t j = 1; j <= lastLink(ed); ++j)
            if (all || linkAt(ed, j).Marked) row.link(linkAt(ed, j), value);
    if (row.node)
        for (std::int32_t i = 1; i <= lastNode(ed); ++i)
            if (all || nodeAt(ed, i).Marked) row.node(nodeAt(ed, i), scope);
}

void finish(Editor& ed, Deselect deselect, bool redrawStrip) {
    if (deselect == Deselect::everything) NoSelections(ed);
    if (deselect == Deselect::links) ed.SelectedLink = ed.HoverLink = none;
    if (redrawStrip) redrawPhaseManager(ed, ed.AnimationTime);
    showCounts(ed);
    redrawScene(ed);
}

// valueText: for a row with a setting.
void run(Editor& ed, Host& host, const BulkCommand& row, float value, const std::string& valueText) {
    const Scope scope = ed.marks.mnuApplyChanges ? Scope::object : Scope::all;
    const std::int32_t selected = ed.SelectedNode;
    if (scope == Scope::object && !markSelectedObject(ed)) {
        refuse(ed, host, selectNodeMessage);
    } else {
        change(ed, row, scope, value);
        if (ed.SelectedNode != selected) DisplayNodeData(ed, ed.SelectedNode);
        panel(ed, 5) = scope == Scope::all ? row.all : row.object;
        if (row.setting) panel(ed, 5) += valueText + " !";
    }
    finish(ed, row.deselect, row.redrawStrip);
}

// Runs several in turn; the closing message is one for all of them.
void runAll(Editor& ed, Host& host, std::initializer_list<std::string_view> names, const char* objectMessage,
            const char* allMessage) {
    for (const std::string_view name : names) runBulk(ed, host, name);
    if (!ed.marks.mnuApplyChanges)
        panel(ed, 5) = allMessage;
    else if (objectSelected(ed))
        panel(ed, 5) = objectMessage;
    else
        refuse(ed, host, selectNodeMessage);
}

}  // namespace

void runBulk(Editor& ed, Host& host, std::string_view name) {
    const BulkCommand& row = command(name);
    const float preset = row.setting ? ed.*row.setting : 0;
    if (!row.prompt) return run(ed, host, row, preset, realText(preset));
    const auto value = askNumber(host, row.prompt, row.title, realText(preset));
    if (value) run(ed, host, row, toReal(*value), realText(*value));
}

void mnuRemoveFreeNodes_Click(Editor& ed, Host&) {
    for (std::int32_t i = 1; i <= lastNode(ed); ++i) nodeAt(ed, i).Marked = true;
    for (const Link& link : ed.Links) {
        if (!link.Used) continue;
        for (const std::int32_t end : {link.N1, link.N2})
            if (nodeExists(ed, end)) nodeAt(ed, end).Marked = false;
    }
    forEachNode(ed, [](std::int32_t, Node& node) { node.Used = !node.Marked; });
    panel(ed, 5) = "All free nodes removed!";
    finish(ed, Deselect::everything, true);
}

void mnuResetAllNodes_Click(Editor& ed, Host& host) {
    runAll(ed, host,
           {"mnuResetSprites", "mnuUnlockAll", "mnuResetMass", "mnuResetGravity", "mnuResetRotationalForces",
            "mnuResetInitial", "mnuResetVelocity"},
           "Object node properties reset!", "All node properties reset!");
}

void mnuResetAllLinks_Click(Editor& ed, Host& host) {
    runAll(ed, host, {"mnuClearAnimators", "mnuResetK", "mnuResetAngle", "mnuResetForce", "mnuResetBarriers"},
           "Object link properties reset!", "All link properties reset!");
}

}  // namespace zentrik
