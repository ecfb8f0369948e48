#include "settings/settings.h"

#include "basics/no_doubles.h"
#include "basics/numbers.h"
#include "model/rate.h"
#include "project/forms.h"
#include "settings/first_run.h"
#include "ui/commands/options.h"

#include <string_view>
#include <variant>

namespace zentrik {

namespace {

// Stands for the animation timer's period, which a project may refuse.
struct TimerPeriod {
    bool operator==(const TimerPeriod&) const = default;
};

using Slot = std::variant<float Placement::*, bool Marks::*, bool Buttons::*, float Editor::*,
                          std::int32_t Editor::*, std::string Editor::*, TimerPeriod>;

struct SettingRow {
    const char* key;
    Slot slot;
};

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
    {"NodeRadius", &Editor::NodeRadius},
    {"DefaultLinkK", &Editor::DefaultLinkK},
    {"DefaultLinkForce", &Editor::DefaultLinkForce},
    {"StructureParm", &Editor::StructureParm},
    {"Friction", &Editor::Friction},
    {"Viscosity", &Editor::Viscosity},
    {"LeftWind", &Editor::LeftWind},
    {"TimeInterval", &Editor::TimeInterval},
    {"Gravity", &Editor::Gravity},
    {"Bounce", &Editor::Bounce},
    {"Speed", TimerPeriod{}},
    {"DeltaAngle", &Editor::DeltaAngle},
    {"LinkColor", &Editor::LinkColor},
    {"NodeColor", &Editor::NodeColor},
    {"GridSize", &Editor::GridSize},
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
static_assert(std::size(rows) == 54 &&
              !anyShared(rows, [](const SettingRow& row) { return std::string_view(row.key); }) &&
              !anyShared(rows, [](const SettingRow& row) { return row.slot; }));

// Stand beside the table: whether the window comes back maximised, and where pictures are saved.
constexpr const char* maximizedKey = "Maximized";
constexpr const char* shareFolderKey = "ShareFolder";

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

void takeFirst(const SettingRow& row, Editor& ed, Placement& placement) {
    const Editor first = firstRun();
    const Placement firstPlacement;
    const Place<Editor, Placement> place{ed, placement};
    const Place<const Editor, const Placement> from{first, firstPlacement};
    std::visit([&](auto slot) { place(slot) = from(slot); }, row.slot);
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
        if (!text || !convert(row, *text, ed, placement) || !isAcceptable(row, ed))
            takeFirst(row, ed, placement);
    }
    ed.windowMaximized = store.read(maximizedKey) == "True";
    ed.shareFolder = store.read(shareFolderKey).value_or("");
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
    if (!ed.shareFolder.empty()) store.write(shareFolderKey, ed.shareFolder);
}

}  // namespace zentrik
