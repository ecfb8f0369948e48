#pragma once
// The keys of the settings file and what they stand for. A setting that projects carry too has its name and
// its place from the project file's columns.

#include "model/editor.h"
#include "project/columns.h"

#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace zentrik {

// The main window's place and size, twips.
struct Placement {
    float left = 1200, top = 1200, width = 13500, height = 5000;
};

using SettingSlot = std::variant<float Placement::*, bool Marks::*, bool Buttons::*, float Editor::*,
                                 std::int32_t Editor::*, std::string Editor::*>;

struct SettingRow {
    std::string_view key;
    SettingSlot slot;
    bool (*accepts)(const Editor& ed) = nullptr;  // whether what was read will do; null where all does
};

// A column of the global line as a setting of the program's record.
constexpr SettingRow settingOf(const Column<GlobalSettings>& column) {
    if (column.name == "scene width") return {column.name, &Editor::sceneWidth};
    if (column.name == "scene height") return {column.name, &Editor::sceneHeight};
    // Not by get_if, whose pointers g++ 12 takes for no constants under sanitizers.
    using Whole = std::int32_t GlobalSettings::*;
    using Real = float GlobalSettings::*;
    if (std::holds_alternative<Whole>(column.member))
        return {column.name, static_cast<std::int32_t ProjectSettings::*>(std::get<Whole>(column.member))};
    return {column.name, static_cast<float ProjectSettings::*>(std::get<Real>(column.member))};
}

// That of a name; there must be one.
constexpr SettingRow filed(std::string_view name) {
    const auto* column = globalColumns;
    while (column->name != name) ++column;
    return settingOf(*column);
}

// In the order in which they are stored.
std::span<const SettingRow> settingRows();

}  // namespace zentrik
