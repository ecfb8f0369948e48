#include "settings/setting_rows.h"

#include "basics/no_doubles.h"
#include "model/rate.h"
#include "ui/commands/options.h"

namespace zentrik {

namespace {

// clang-format off
constexpr SettingRow rows[] = {
    {"MainLeft", &Placement::left},
    {"MainTop", &Placement::top},
    {"MainWidth", &Placement::width},
    {"MainHeight", &Placement::height},
    {"UseDirectional", &Marks::mnuUseDirectional},
    {"IgnoreBarriers", &Marks::mnuIgnoreBarriers},
    {"ReverseModel", &Marks::mnuReverseModel},
    {"Persistent", &Marks::mnuPersistentFireworks},
    {"CannonBall", &Marks::mnuCannonBallFocus},
    {"Walls", &Marks::mnuWalls},
    {"Ceiling", &Marks::mnuCeiling},
    {"Fireworks", &Marks::mnuDisplayFireWorks},
    {"UseRandom", &Marks::mnuUseRandom},
    {"Random", &Marks::mnuRandom},
    {"AutoResume", &Marks::mnuAutoResume},
    {"DisplayTitle", &Marks::mnuDisplayTitle},
    {"AllowZero", &Marks::mnuAllowZero},
    {"AllowGrid", &Marks::mnuAllowGrid},
    {"AllowSprites", &Marks::mnuAllowSprites},
    {"DisplayBrowser", &Marks::mnuDisplayBrowser},
    {"ApplyChanges", &Marks::mnuApplyChanges},
    {"DisplayManager", &Marks::mnuDisplayAngleManager},
    {"AutoWindow", &Marks::mnuAutoWindowSize},
    {"NodeRadius", &Editor::NodeRadius, [](const Editor& ed) { return ed.NodeRadius >= smallestRadius; }},
    {"DefaultLinkK", &Editor::DefaultLinkK},
    {"DefaultLinkForce", &Editor::DefaultLinkForce},
    {"StructureParm", &Editor::StructureParm},
    filed("Friction"),
    filed("Viscosity"),
    filed("LeftWind"),
    filed("TimeInterval"),
    filed("Gravity"),
    filed("Bounce"),
    {"Speed", filed("timer period").slot, [](const Editor& ed) { return isPeriod(ed.timerPeriod); }},
    filed("DeltaAngle"),
    {"LinkColor", &Editor::LinkColor},
    {"NodeColor", &Editor::NodeColor},
    {"GridSize", &Editor::GridSize, [](const Editor& ed) { return ed.GridSize > 49; }},
    {"GridRadius", &Editor::GridRadius},
    {"ShooterDirection", &Editor::ShooterDirection},
    {"ShooterVelocity", &Editor::ShooterVelocity},
    {"BackColor", &Editor::BackColor},
    {"Line", &Buttons::line},
    {"Ball", &Buttons::ball},
    {"Slow", &Buttons::slow},
    {"Draw", &Buttons::draw},
    {"Same", &Buttons::same},
    {"Animation", &Buttons::animation},
    {"DisplayData", &Buttons::data},
    {"SnapToGrid", &Buttons::snap},
    {"DisplayGrid", &Buttons::grid},
    {"PrintNumbers", &Buttons::numbers},
    {"SimpleNumbers", &Buttons::simple},
    {"Sprite", &Buttons::sprite},
};
// clang-format on
static_assert(!anyShared(rows, [](const SettingRow& row) { return row.key; }) &&
              !anyShared(rows, [](const SettingRow& row) { return row.slot; }));

}  // namespace

std::span<const SettingRow> settingRows() { return rows; }

}  // namespace zentrik
