#include "settings/settings.h"

#include "basics/numbers.h"
#include "project/forms.h"
#include "settings/first_run.h"
#include "settings/setting_rows.h"
#include "ui/commands/options.h"

#include <string_view>

namespace zentrik {

namespace {

// Stand beside the table: whether the window comes back maximised, and where pictures are saved.
constexpr const char* maximizedKey = "Maximized";
constexpr const char *shareFolderKey = "ShareFolder", *plotPlaceKey = "PlotPlace";

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
    for (const SettingRow& row : settingRows()) {
        const std::optional<std::string> text = store.read(std::string(row.key));
        if (!text || !convert(row, *text, ed, placement) || (row.accepts && !row.accepts(ed)))
            takeFirst(row, ed, placement);
    }
    ed.windowMaximized = store.read(maximizedKey) == "True";
    ed.shareFolder = store.read(shareFolderKey).value_or("");
    ed.plotPlace = store.read(plotPlaceKey).value_or("");
    setNodeRadius(ed, ed.NodeRadius);
    ed.timerFireWorks.enabled = ed.marks.mnuDisplayFireWorks;
}

void saveSettings(const Editor& ed, const std::optional<Placement>& placement, SettingsStore& store) {
    for (const SettingRow& row : settingRows()) {
        const bool ofWindow = std::holds_alternative<float Placement::*>(row.slot);
        if (ofWindow && !placement) continue;
        store.write(std::string(row.key), textOf(row, ed, placement.value_or(Placement{})));
    }
    store.write(maximizedKey, booleanText(ed.windowMaximized));
    if (!ed.shareFolder.empty()) store.write(shareFolderKey, ed.shareFolder);
    if (!ed.plotPlace.empty()) store.write(plotPlaceKey, ed.plotPlace);
}

}  // namespace zentrik
