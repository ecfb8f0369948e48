#include "ui/settings.h"

#include "model/numbers.h"
#include "model/rate.h"
#include "project/forms.h"
#include "ui/options.h"

#include <variant>

namespace zentrik {

namespace {

// Stands for the animation timer's period, which a project may refuse.
struct TimerPeriod {};

using Slot = std::variant<float Placement::*, bool Marks::*, bool Buttons::*, float Editor::*,
                          std::int32_t Editor::*, std::string Editor::*, TimerPeriod>;

struct SettingRow {
    const char* key;
    const char* byDefault;
    Slot slot;
};

// clang-format off
const SettingRow rows[] = {
    {"MainLeft", "1200", &Placement::left},
    {"MainTop", "1200", &Placement::top},
    {"MainWidth", "13500", &Placement::width},
    {"MainHeight", "5000", &Placement::height},
    {"UseDirectional", "True", &Marks::mnuUseDirectional},
    {"IgnoreBarriers", "True", &Marks::mnuIgnoreBarriers},
    {"ReverseModel", "True", &Marks::mnuReverseModel},
    {"Persistent", "False", &Marks::mnuPersistentFireworks},
    {"CannonBall", "False", &Marks::mnuCannonBallFocus},
    {"Walls", "True", &Marks::mnuWalls},
    {"Ceiling", "True", &Marks::mnuCeiling},
    {"Fireworks", "False", &Marks::mnuDisplayFireWorks},
    {"UseRandom", "False", &Marks::mnuUseRandom},
    {"Random", "False", &Marks::mnuRandom},
    {"AutoResume", "True", &Marks::mnuAutoResume},
    {"DisplayTitle", "False", &Marks::mnuDisplayTitle},
    {"AllowZero", "False", &Marks::mnuAllowZero},
    {"AllowGrid", "False", &Marks::mnuAllowGrid},
    {"AllowSprites", "False", &Marks::mnuAllowSprites},
    {"DisplayBrowser", "False", &Marks::mnuDisplayBrowser},
    {"ApplyChanges", "False", &Marks::mnuApplyChanges},
    {"DisplayManager", "False", &Marks::mnuDisplayAngleManager},
    {"AutoWindow", "False", &Marks::mnuAutoWindowSize},
    {"NodeRadius", "60", &Editor::NodeRadius},
    {"DefaultLinkK", "5", &Editor::DefaultLinkK},
    {"DefaultLinkForce", "0.2", &Editor::DefaultLinkForce},
    {"StructureParm", "20:1000", &Editor::StructureParm},
    {"Friction", "0.2", &Editor::Friction},
    {"Viscosity", "0", &Editor::Viscosity},
    {"LeftWind", "0", &Editor::LeftWind},
    {"TimeInterval", "20", &Editor::TimeInterval},
    {"Gravity", "1", &Editor::Gravity},
    {"Bounce", "0.5", &Editor::Bounce},
    {"Speed", "20", TimerPeriod{}},
    {"DeltaAngle", "0.1", &Editor::DeltaAngle},
    {"LinkColor", "0", &Editor::LinkColor},
    {"NodeColor", "0", &Editor::NodeColor},
    {"GridSize", "250", &Editor::GridSize},
    {"GridRadius", "15", &Editor::GridRadius},
    {"ShooterDirection", "0.7825", &Editor::ShooterDirection},
    {"ShooterVelocity", "8000", &Editor::ShooterVelocity},
    {"BackColor", "16777215", &Editor::BackColor},
    {"Line", "1", &Buttons::line},
    {"Ball", "1", &Buttons::ball},
    {"Slow", "0", &Buttons::slow},
    {"Draw", "1", &Buttons::draw},
    {"Same", "1", &Buttons::same},
    {"Animation", "1", &Buttons::animation},
    {"DisplayData", "0", &Buttons::data},
    {"SnapToGrid", "0", &Buttons::snap},
    {"DisplayGrid", "0", &Buttons::grid},
    {"PrintNumbers", "0", &Buttons::numbers},
    {"SimpleNumbers", "1", &Buttons::simple},
    {"Sprite", "0", &Buttons::sprite},
};
// clang-format on
static_assert(std::size(rows) == 54);

// Stands beside the table: whether the window comes back maximised.
constexpr const char* maximizedKey = "Maximized";

// Where a row's value lives, for reading (const records) and for writing.
template <class EditorType, class PlacementType>
struct Place {
    EditorType& ed;
    PlacementType& placement;

    auto& operator()(float Placement::*m) const { return placement.*m; }
    auto& operator()(bool Marks::*m) const { return ed.marks.*m; }
    auto& operator()(bool Buttons::*m) const { return ed.buttons.*m; }
    auto& operator()(float Editor::*m) const { return ed.*m; }
    auto& operator()(std::int32_t Editor::*m) const { return ed.*m; }
    auto& operator()(std::string Editor::*m) const { return ed.*m; }
    auto& operator()(TimerPeriod) const { return ed.Timer1.interval; }
};

bool convert(const SettingRow& row, const std::string& text, Editor& ed, Placement& placement) {
    const Place<Editor, Placement> place{ed, placement};
    return std::visit([&](auto slot) { return readForm(text, place(slot)); }, row.slot);
}

bool isAcceptable(const SettingRow& row, const Editor& ed) {
    if (std::holds_alternative<TimerPeriod>(row.slot)) return isPeriod(ed.Timer1.interval);
    if (const auto* real = std::get_if<float Editor::*>(&row.slot); real && *real == &Editor::GridSize)
        return ed.GridSize > 49;
    if (const auto* whole = std::get_if<std::int32_t Editor::*>(&row.slot);
        whole && *whole == &Editor::NodeRadius)
        return ed.NodeRadius >= smallestRadius;
    return true;
}

std::string textOf(const SettingRow& row, const Editor& ed, const Placement& placement) {
    if (const auto* button = std::get_if<bool Buttons::*>(&row.slot)) return ed.buttons.**button ? "1" : "0";
    if (const auto* text = std::get_if<std::string Editor::*>(&row.slot)) return ed.**text;
    const Place<const Editor, const Placement> place{ed, placement};
    std::string written;
    std::visit([&](auto slot) { appendForm(written, place(slot)); }, row.slot);
    return written;
}

}  // namespace

void getSettings(Editor& ed, Placement& placement, SettingsStore& store) {
    for (const SettingRow& row : rows) {
        const std::optional<std::string> text = store.read(row.key);
        if (text && convert(row, *text, ed, placement) && isAcceptable(row, ed)) continue;
        convert(row, row.byDefault, ed, placement);
    }
    ed.windowMaximized = store.read(maximizedKey) == "True";
    setNodeRadius(ed, ed.NodeRadius);
    ed.timerFireWorks.enabled = ed.marks.mnuDisplayFireWorks;
}

void saveSettings(const Editor& ed, const std::optional<Placement>& placement, SettingsStore& store) {
    for (const SettingRow& row : rows) {
        const bool ofWindow = std::holds_alternative<float Placement::*>(row.slot);
        if (ofWindow && !placement) continue;
        store.write(row.key, textOf(row, ed, placement.value_or(Placement{})));
    }
    store.write(maximizedKey, booleanText(ed.windowMaximized));
}

}  // namespace zentrik
