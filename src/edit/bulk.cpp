#include "edit/bulk.h"

#include "basics/no_doubles.h"
#include "basics/numbers.h"
#include "edit/command.h"
#include "host/host.h"
#include "host/questions.h"
#include "model/readout.h"
#include "model/redraw.h"
#include "model/store.h"

#include <string_view>

namespace zentrik {

namespace {

enum class Scope { object, all };
enum class Deselect { nothing, links, everything };
enum class Strip { keep, redraw };

struct BulkCommand {
    std::string_view name;
    void (*changeNode)(Node&, Scope);
    void (*changeLink)(Link&, float value);
    float Editor::*setting;  // default of the value; where there is one, messages go on "VALUE !"
    Deselect deselect;
    Strip strip;
    std::string_view objectMessage, allMessage;
};

void setMass(Node& node, Scope) { node.Mass = 1; }
void setGravity(Node& node, Scope) { node.Gravity = 1; }
void clearRotate(Node& node, Scope) { node.Rotate = 0; }
void clearInitial(Node& node, Scope) { node.Vxo = node.Vyo = 0; }
void clearVelocity(Node& node, Scope scope) {
    node.Vx = node.Vy = 0;
    if (scope == Scope::all) node.Fx = node.Fy = 0;
}
void clearSprite(Node& node, Scope) {
    node.Sprite = noSprite;
    node.SpriteIndex = 0;
}
void unlock(Node& node, Scope) { node.Locked = false; }
void lock(Node& node, Scope) { node.Locked = true; }
void freeNode(Node& node, Scope) { node.Used = false; }

void clearAnimator(Link& link, float) { link.Animator = false; }
void clearAngle(Link& link, float) { link.Angle = 0; }
void clearBarrier(Link& link, float) { link.Barrier = false; }
void setK(Link& link, float value) { link.k = value; }
void doubleK(Link& link, float) { link.k = toReal(2.0 * link.k); }
void halveK(Link& link, float) { link.k /= 2; }
void setForce(Link& link, float value) { link.Force = value; }
void doubleForce(Link& link, float) { link.Force = toReal(2.0 * link.Force); }
void halveForce(Link& link, float) { link.Force /= 2; }
void freeLink(Link& link, float) { link.Used = false; }

constexpr auto noNode = static_cast<void (*)(Node&, Scope)>(nullptr);
constexpr auto noLink = static_cast<void (*)(Link&, float)>(nullptr);
constexpr auto noValue = static_cast<float Editor::*>(nullptr);
constexpr auto linkK = &Editor::DefaultLinkK, linkForce = &Editor::DefaultLinkForce;
constexpr auto nothing = Deselect::nothing, links = Deselect::links, everything = Deselect::everything;
constexpr auto keep = Strip::keep, redraw = Strip::redraw;

// clang-format off
constexpr BulkCommand commands[] = {
    {"mnuResetMass", setMass, noLink, noValue, nothing, keep,
     "Object nodes masses reset to 1!", "All node masses reset to 1!"},
    {"mnuResetGravity", setGravity, noLink, noValue, nothing, keep,
     "Object node gravitational forces reset to 1!", "All node gravitational forces reset to 1!"},
    {"mnuResetRotationalForces", clearRotate, noLink, noValue, nothing, keep,
     "Object node rotational forces reset to 0!", "All node rotational forces reset to 0!"},
    {"mnuResetInitial", clearInitial, noLink, noValue, nothing, keep,
     "Object node initial velocities reset to 0!", "All node initial velocities reset to 0!"},
    {"mnuResetVelocity", clearVelocity, noLink, noValue, nothing, keep,
     "Object node velocities reset to 0!", "All node velocities reset to 0!"},
    {"mnuResetSprites", clearSprite, noLink, noValue, nothing, keep,
     "Object node sprites reset to <none>!", "All node sprites reset to <none>!"},
    {"mnuUnlockAll", unlock, noLink, noValue, nothing, keep,
     "Object nodes unlocked!", "All nodes unlocked!"},
    {"mnuLockAll", lock, noLink, noValue, nothing, keep,
     "Object nodes locked!", "All nodes locked!"},
    {"mnuClearAnimators", noNode, clearAnimator, noValue, nothing, redraw,
     "Object link animators reset!", "All link animators reset!"},
    {"mnuResetK", noNode, setK, linkK, nothing, redraw,
     "Object link k's reset to ", "All link k's reset to "},
    {"mnuResetAngle", noNode, clearAngle, noValue, nothing, redraw,
     "Object link phase angles set to 0!", "All link phase angles set to 0!"},
    {"mnuResetForce", noNode, setForce, linkForce, nothing, redraw,
     "Object link animator forces reset to ", "All link animator forces reset to "},
    {"mnuResetBarriers", noNode, clearBarrier, noValue, nothing, redraw,
     "Object link barriers reset!", "All link barriers reset!"},
    {"mnuSetLinkK", noNode, setK, linkK, nothing, redraw,
     "Object link k's set to ", "All link k's set to "},
    {"mnuDoubleK", noNode, doubleK, noValue, nothing, redraw,
     "Object link k's doubled!", "All link k's doubled!"},
    {"mnuHalfK", noNode, halveK, noValue, nothing, redraw,
     "Object link k's halved!", "All link k's halved!"},
    {"mnuSetLinkF", noNode, setForce, linkForce, nothing, redraw,
     "Object link f's set to ", "All link f's set to "},
    {"mnuDoubleF", noNode, doubleForce, noValue, nothing, keep,
     "Object link animator forces doubled!", "All link animator forces doubled!"},
    {"mnuHalveF", noNode, halveForce, noValue, nothing, redraw,
     "Object link animator forces halved!", "All link animator forces halved!"},
    {"mnuRemoveNodes", freeNode, freeLink, noValue, everything, redraw,
     "Object nodes removed!", "All nodes removed!"},
    {"mnuRemoveLinks", noNode, freeLink, noValue, links, redraw,
     "Object links removed!", "All links removed!"},
};
// clang-format on
static_assert(!anyShared(commands, [](const BulkCommand& row) { return std::string_view(row.name); }));

// A misspelled name does not compile.
consteval const BulkCommand& command(std::string_view name) {
    for (const BulkCommand& row : commands)
        if (row.name == name) return row;
    throw "no such command";
}

void change(Editor& ed, const BulkCommand& row, Scope scope, float value) {
    const bool all = scope == Scope::all;
    if (row.changeLink)
        for (std::int32_t j = 1; j <= lastLink(ed); ++j)
            if (all || linkAt(ed, j).Marked) row.changeLink(linkAt(ed, j), value);
    if (row.changeNode)
        for (std::int32_t i = 1; i <= lastNode(ed); ++i)
            if (all || nodeAt(ed, i).Marked) row.changeNode(nodeAt(ed, i), scope);
}

void finish(Editor& ed, Deselect deselect, Strip strip) {
    if (deselect == Deselect::everything) NoSelections(ed);
    if (deselect == Deselect::links) ed.SelectedLink = ed.HoverLink = none;
    if (strip == Strip::redraw) redrawPhaseManager(ed, ed.AnimationTime);
    showCounts(ed);
    redrawScene(ed);
}

// value and valueText: for a row with a setting.
void run(Editor& ed, Host& host, const BulkCommand& row, float value, const std::string& valueText) {
    const Scope scope = ed.marks.mnuApplyChanges ? Scope::object : Scope::all;
    const std::int32_t selected = ed.SelectedNode;
    if (scope == Scope::object && !markSelectedObject(ed)) {
        refuse(ed, host, selectNodeMessage);
    } else {
        change(ed, row, scope, value);
        if (ed.SelectedNode != selected) DisplayNodeData(ed, ed.SelectedNode);
        panel(ed, 5) = scope == Scope::all ? row.allMessage : row.objectMessage;
        if (row.setting) panel(ed, 5) += valueText + " !";
    }
    finish(ed, row.deselect, row.strip);
}

void run(Editor& ed, Host& host, const BulkCommand& row) {
    const float value = row.setting ? ed.*row.setting : 0;
    run(ed, host, row, value, realText(value));
}

void ask(Editor& ed, Host& host, const BulkCommand& row, const char* prompt, const char* title) {
    const auto value = askNumber(host, prompt, title, realText(ed.*row.setting));
    if (value) run(ed, host, row, toReal(*value), realText(*value));
}

// The closing message of a command made of others.
void report(Editor& ed, Host& host, const char* objectMessage, const char* allMessage) {
    if (!ed.marks.mnuApplyChanges)
        panel(ed, 5) = allMessage;
    else if (objectSelected(ed))
        panel(ed, 5) = objectMessage;
    else
        refuse(ed, host, selectNodeMessage);
}

}  // namespace

void mnuResetMass_Click(Editor& ed, Host& host) { run(ed, host, command("mnuResetMass")); }
void mnuResetGravity_Click(Editor& ed, Host& host) { run(ed, host, command("mnuResetGravity")); }
void mnuResetRotationalForces_Click(Editor& ed, Host& host) {
    run(ed, host, command("mnuResetRotationalForces"));
}
void mnuResetInitial_Click(Editor& ed, Host& host) { run(ed, host, command("mnuResetInitial")); }
void mnuResetVelocity_Click(Editor& ed, Host& host) { run(ed, host, command("mnuResetVelocity")); }
void mnuResetSprites_Click(Editor& ed, Host& host) { run(ed, host, command("mnuResetSprites")); }
void mnuUnlockAll_Click(Editor& ed, Host& host) { run(ed, host, command("mnuUnlockAll")); }
void mnuLockAll_Click(Editor& ed, Host& host) { run(ed, host, command("mnuLockAll")); }

void mnuClearAnimators_Click(Editor& ed, Host& host) { run(ed, host, command("mnuClearAnimators")); }
void mnuResetK_Click(Editor& ed, Host& host) { run(ed, host, command("mnuResetK")); }
void mnuResetAngle_Click(Editor& ed, Host& host) { run(ed, host, command("mnuResetAngle")); }
void mnuResetForce_Click(Editor& ed, Host& host) { run(ed, host, command("mnuResetForce")); }
void mnuResetBarriers_Click(Editor& ed, Host& host) { run(ed, host, command("mnuResetBarriers")); }
void mnuDoubleK_Click(Editor& ed, Host& host) { run(ed, host, command("mnuDoubleK")); }
void mnuHalfK_Click(Editor& ed, Host& host) { run(ed, host, command("mnuHalfK")); }
void mnuDoubleF_Click(Editor& ed, Host& host) { run(ed, host, command("mnuDoubleF")); }
void mnuHalveF_Click(Editor& ed, Host& host) { run(ed, host, command("mnuHalveF")); }

void mnuSetLinkK_Click(Editor& ed, Host& host) {
    ask(ed, host, command("mnuSetLinkK"), "Enter value for link k's:", "Set All Link k's");
}
void mnuSetLinkF_Click(Editor& ed, Host& host) {
    ask(ed, host, command("mnuSetLinkF"), "Enter value for link f's:", "Set All link f's");
}

void mnuRemoveNodes_Click(Editor& ed, Host& host) { run(ed, host, command("mnuRemoveNodes")); }
void mnuRemoveLinks_Click(Editor& ed, Host& host) { run(ed, host, command("mnuRemoveLinks")); }

void mnuRemoveFreeNodes_Click(Editor& ed, Host&) {
    for (std::int32_t i = 1; i <= lastNode(ed); ++i) nodeAt(ed, i).Marked = true;
    for (const Link& link : ed.Links) {
        if (!link.Used) continue;
        for (const std::int32_t end : {link.N1, link.N2})
            if (nodeExists(ed, end)) nodeAt(ed, end).Marked = false;
    }
    forEachNode(ed, [](std::int32_t, Node& node) { node.Used = !node.Marked; });
    panel(ed, 5) = "All free nodes removed!";
    finish(ed, Deselect::everything, Strip::redraw);
}

void mnuResetAllNodes_Click(Editor& ed, Host& host) {
    mnuResetSprites_Click(ed, host);
    mnuUnlockAll_Click(ed, host);
    mnuResetMass_Click(ed, host);
    mnuResetGravity_Click(ed, host);
    mnuResetRotationalForces_Click(ed, host);
    mnuResetInitial_Click(ed, host);
    mnuResetVelocity_Click(ed, host);
    report(ed, host, "Object node properties reset!", "All node properties reset!");
}

void mnuResetAllLinks_Click(Editor& ed, Host& host) {
    mnuClearAnimators_Click(ed, host);
    mnuResetK_Click(ed, host);
    mnuResetAngle_Click(ed, host);
    mnuResetForce_Click(ed, host);
    mnuResetBarriers_Click(ed, host);
    report(ed, host, "Object link properties reset!", "All link properties reset!");
}

}  // namespace zentrik
