#include "ui/menus.h"

#include "basics/no_doubles.h"
#include "edit/builders.h"
#include "edit/bulk.h"
#include "edit/compact.h"
#include "edit/objects.h"
#include "effects/fireworks.h"
#include "effects/shooter.h"
#include "library/library.h"
#include "model/store.h"
#include "sim/run.h"
#include "ui/commands/model_information.h"
#include "ui/commands/online.h"
#include "ui/commands/options.h"
#include "ui/commands/sprite_commands.h"

#include <string_view>

namespace zentrik {

namespace {

constexpr MenuRow menu(const char* name, const char* caption) {
    return {name, caption, nullptr, nullptr, nullptr};
}
constexpr MenuRow entry(const char* name, const char* caption, const char* shortcut, Command command) {
    return {name, caption, shortcut, command, nullptr};
}
constexpr MenuRow toggle(const char* name, const char* caption, const char* shortcut, bool Marks::*mark,
                         Command followUp = nullptr) {
    return {name, caption, shortcut, followUp, mark};
}
constexpr MenuRow line(const char* name) { return {name, "-", nullptr, nullptr, nullptr}; }

constexpr const char* no = nullptr;  // no shortcut

// clang-format off
constexpr MenuRow rows[] = {
    menu("mnuGlobal", "&Global"),
    entry("mnuCompact", "&Compact Model", no, mnuCompact_Click),
    entry("mnuResetGlobal", "Reset &Global Settings", no, mnuResetGlobal_Click),
    entry("mnuSetZero", "Set Animation Time to &Zero", "Ctrl+Z", mnuSetZero_Click),
    entry("mnuShowModel", "Show Model &Information", "Ctrl+I", mnuShowModel_Click),

    menu("mnuNodes", "&Nodes"),
    entry("mnuRemoveNodes", "Remove &Nodes", "Del", bulk<"mnuRemoveNodes">),
    entry("mnuRemoveFreeNodes", "Remove All &Free Nodes", no, mnuRemoveFreeNodes_Click),
    entry("mnuResetAllNodes", "Reset Node &Properties", no, mnuResetAllNodes_Click),
    line("mnuSel58"),
    entry("mnuResetSprites", "Reset Node &Sprites", no, bulk<"mnuResetSprites">),
    entry("mnuUnlockAll", "Reset Node &Locks", no, bulk<"mnuUnlockAll">),
    entry("mnuResetMass", "Reset Node &Masses", no, bulk<"mnuResetMass">),
    entry("mnuResetGravity", "Reset Node &Gravity", no, bulk<"mnuResetGravity">),
    entry("mnuResetRotationalForces", "Reset Node &Rotational Forces", no, bulk<"mnuResetRotationalForces">),
    entry("mnuResetInitial", "Reset Node &Initial Velocities", no, bulk<"mnuResetInitial">),
    entry("mnuResetVelocity", "Reset Node &Velocities", no, bulk<"mnuResetVelocity">),
    line("mnuSel69"),
    entry("mnuLockAll", "Lock &All Nodes", "Ctrl+L", bulk<"mnuLockAll">),
    entry("mnuSetRadius", "Set &Default Node Radius", no, mnuSetRadius_Click),

    menu("mnuLinks", "&Links"),
    entry("mnuRemoveLinks", "&Remove Links", "Shift+Del", bulk<"mnuRemoveLinks">),
    entry("mnuResetAllLinks", "Reset Link &Properties", no, mnuResetAllLinks_Click),
    line("mnuSel57"),
    entry("mnuClearAnimators", "Reset Link &Animators", no, bulk<"mnuClearAnimators">),
    entry("mnuResetK", "Reset Link &k's", no, bulk<"mnuResetK">),
    entry("mnuResetAngle", "Reset Link An&gles", no, bulk<"mnuResetAngle">),
    entry("mnuResetForce", "Reset Link &Forces", no, bulk<"mnuResetForce">),
    entry("mnuResetBarriers", "Reset Link &Barriers", no, bulk<"mnuResetBarriers">),
    line("mnuSel31"),
    entry("mnuSetLinkK", "Set Link k's to Specific Value", no, bulk<"mnuSetLinkK">),
    entry("mnuDoubleK", "Double Link k's", no, bulk<"mnuDoubleK">),
    entry("mnuHalfK", "Halve Link k's", no, bulk<"mnuHalfK">),
    line("mnuSel46"),
    entry("mnuSetLinkF", "Set Link f's to Specific Value", no, bulk<"mnuSetLinkF">),
    entry("mnuDoubleF", "Double Link f's", no, bulk<"mnuDoubleF">),
    entry("mnuHalveF", "Halve Link f's", no, bulk<"mnuHalveF">),
    line("mnuSel03"),
    entry("mnuDefaultK", "Set Default &Spring Constant", no, mnuDefaultK_Click),
    entry("mnuDefaultForce", "Set Default Li&nk Force", no, mnuDefaultForce_Click),
    toggle("mnuAllowZero", "Allow &Zero Length Links", no, &Marks::mnuAllowZero, redrawDrawings),

    menu("mnuStructures", "&Structures"),
    entry("mnuDuplicateNode", "Create &Duplicate Node", "Ctrl+D", mnuDuplicateNode_Click),
    entry("mnuDuplicateObject", "Create Duplicate &Object", no, mnuDuplicateObject_Click),
    entry("mnuCreateNodeAtMidpoint", "Create Node at Link &Midpoint", "Ctrl+M", mnuCreateNodeAtMidpoint_Click),
    line("mnuSep81"),
    entry("mnuCreateNodeRing", "Create Node &Ring", no, mnuCreateNodeRing_Click),
    entry("mnuCreateConnectedNodeRing", "Create &Connected Node Ring", no, mnuCreateConnectedNodeRing_Click),
    line("mnuSel91"),
    entry("mnuCreateConnectedNodeRingWithSpokes", "Create Connected Node Ring with &Spokes (Phased Links)", no,
          mnuCreateConnectedNodeRingWithSpokes_Click),
    entry("mnuCreateConnectedNodeRingWithSpokesNo", "Create Connected Node Ring with Spokes (&No Phased Links)", no,
          mnuCreateConnectedNodeRingWithSpokesNo_Click),
    line("mnuSel95"),
    entry("mnuCreateConnectedNodeRingWithLongSpokes",
          "Create Connected Node Ring with &Long Spokes (Phased Links)", no,
          mnuCreateConnectedNodeRingWithLongSpokes_Click),

    menu("mnuSprites", "S&prites"),
    toggle("mnuAllowSprites", "&Allow Sprites in Construction", no, &Marks::mnuAllowSprites),
    entry("mnuRandomNodes", "&Randomly Assign Sprites to Nodes", "Ctrl+A", mnuRandomNodes_Click),

    menu("mnuShooter", "S&hooter"),
    entry("mnuFire", "&Fire Shooter", "Ctrl+F", mnuFire_Click),
    toggle("mnuCannonBallFocus", "&Give Focus to CannonBall", no, &Marks::mnuCannonBallFocus),
    entry("mnuShooterVelocity", "Set Default Shooter &Velocity", no, mnuShooterVelocity_Click),
    entry("mnuShooterDirection", "Set Default Shooter &Direction", no, mnuShooterDirection_Click),

    menu("mnuFireWorksx", "&Fireworks"),
    toggle("mnuDisplayFireWorks", "&Display Fireworks", no, &Marks::mnuDisplayFireWorks, followFireworksMark),
    toggle("mnuPersistentFireworks", "&Persistent Fireworks", no, &Marks::mnuPersistentFireworks),

    menu("mnuBarriers", "&Barriers"),
    toggle("mnuIgnoreBarriers", "&Ignore Barriers", no, &Marks::mnuIgnoreBarriers),
    toggle("mnuWalls", "&Walls as Barriers", no, &Marks::mnuWalls),
    toggle("mnuCeiling", "&Ceiling as  Barrier", no, &Marks::mnuCeiling),
    entry("mnuCreateRoad", "Create &Road Barrier", no, mnuCreateRoad_Click),

    menu("mnuSettings", "&Settings"),
    toggle("mnuAutoResume", "&AutoResume", no, &Marks::mnuAutoResume),
    toggle("mnuApplyChanges", "Apply Changes Only to Selected &Object", no, &Marks::mnuApplyChanges),
    // Which pair of initial velocity buttons is visible follows from the mark itself.
    toggle("mnuUseDirectional", "Use &Directional Initial Node Settings", no, &Marks::mnuUseDirectional),
    toggle("mnuReverseModel", "Reverse &Model on Contact", no, &Marks::mnuReverseModel),
    line("mnuSep57"),
    toggle("mnuAutoWindowSize", "AutoAdjust &Window Size", no, &Marks::mnuAutoWindowSize),
    toggle("mnuDisplayTitle", "Display Project &Title", no, &Marks::mnuDisplayTitle, redrawScene),
    entry("mnuSetTitle", "Set &Project Title", no, mnuSetTitle_Click),
    line("mnuSel02"),
    toggle("mnuAllowGrid", "Allow &Grid During Animation", no, &Marks::mnuAllowGrid, redrawScene),
    entry("mnuGridSize", "Set Grid &Size", no, mnuGridSize_Click),
    line("mnnSep45"),
    entry("mnuLineColor", "&Link Color", no, mnuLineColor_Click),
    entry("mnuBackgroundColor", "&Background Color", no, mnuBackgroundColor_Click),
    entry("mnuNodeColor", "Default &Node Color", no, mnuNodeColor_Click),
    toggle("mnuUseRandom", "&Random Node Colors (on Creation)", no, &Marks::mnuUseRandom),
    toggle("mnuRandom", "Random Node &Colors (in Animation)", no, &Marks::mnuRandom),

    menu("mnuView", "&View"),
    toggle("mnuDisplayBrowser", "&Sprite Browser", "Ctrl+B", &Marks::mnuDisplayBrowser, layOutAgain),
    toggle("mnuDisplayAngleManager", "&Phase Angle Manager", "Ctrl+P", &Marks::mnuDisplayAngleManager, layOutAgain),
    toggle("mnuDisplayPath", "&Node Path", no, &Marks::mnuDisplayPath, followPathMark),

    menu("mnuHelp", "&Help"),
    entry("mnuEmail", "&Email Author", no, mnuEmail_Click),
    entry("mnuForums", "&Discussion Forums", no, mnuForums_Click),
    entry("mnuOnlineHelp", "Online &Help", no, mnuOnlineHelp_Click),
    entry("mnuOnlineUpdate", "Online &Update", no, mnuOnlineUpdate_Click),
    entry("mnuAbout", "&About", no, mnuAbout_Click),
};
// clang-format on

constexpr std::string_view textOf(const char* text) { return text != nullptr ? text : ""; }
static_assert(!anyShared(rows, [](const MenuRow& row) { return textOf(row.name); }) &&
                  !anyShared(rows, [](const MenuRow& row) { return textOf(row.shortcut); }) &&
                  !anyShared(rows, [](const MenuRow& row) { return row.mark; }),
              "two menu entries share a name, a shortcut or a check mark");

}  // namespace

std::span<const MenuRow> menuRows() { return rows; }

void chooseMenu(Editor& ed, Host& host, const MenuRow& row) {
    if (row.mark != nullptr) ed.marks.*row.mark = !(ed.marks.*row.mark);
    if (row.command != nullptr) row.command(ed, host);
}

}  // namespace zentrik
