#pragma once
// What a visitor of a live page may set, and what its page carries besides the project.

#include "model/editor.h"

#include <span>
#include <variant>

namespace zentrik {

// A number with a slider, a switch, or one that a page only carries along (without a label).
struct LiveSetting {
    const char* name;
    std::variant<bool Marks::*, bool Buttons::*, float Editor::*, std::int32_t Editor::*> place;
    const char* label = nullptr;           // of a switch
    std::string Tips::*caption = nullptr;  // of a slider: what the window calls it
    double least = 0, most = 0, by = 0;    // where a slider goes; a number may go further
};
std::span<const LiveSetting> liveSettings();

// A switch is 0 or 1.
double settingOf(const Editor& ed, const LiveSetting& setting);
// Rounded to what the setting holds; what is not finite is 0.
void set(Editor& ed, const LiveSetting& setting, double value);

}  // namespace zentrik
