#pragma once
// The property toolbar as one table, one row a button, left to right. It edits the global settings, the
// selected node and the selected link, and only those.

#include "ui/command_toolbar.h"

#include <string>
#include <string_view>
#include <vector>

namespace zentrik {

// Which pair of initial velocity buttons a button belongs to; one pair is visible at a time.
enum class Pair { always, directional, components };

// What a button's value belongs to.
enum class Owner { global, node, link };

// A number a button edits.
struct Access {
    bool (*store)(Editor&, double);  // rounds to the quantity's own type; false for a value it refuses
    std::string (*text)(const Editor&);
    const char* refusal = "";  // what to say to such a value
};

struct PropertyRow {
    const char* key = "";
    const char* icon = "";
    ButtonStyle style = ButtonStyle::button;
    Owner owner = Owner::global;
    Pair pair = Pair::always;

    // Of buttons that are not drop-down.
    const char* fixedTip = "";
    bool Buttons::*pressed = nullptr;  // of two-state buttons
    Command command = nullptr;

    // Of drop-down buttons.
    std::string Tips::*tip = nullptr;  // what hovering shows
    const Access* access = nullptr;
    std::string_view presets = "";      // texts of the preset menu, parted by blanks; "''" is an empty text
    const char* label = "";             // before the value in the tip
    const char* prompt = nullptr;       // nullptr: the face does nothing
    const char* confirmation = "";      // before the value in status panel 5; empty for none
    const char* startLabel = nullptr;   // instead of the label at start-up; nullptr: the tip waits
    const char* presetLabel = nullptr;  // instead of the label after a preset was chosen
    std::string Tips::*presetTip = nullptr;  // which shows that value instead of the button's own tip
    bool redrawStrip = false;                // the phase strip shows this quantity

    constexpr bool isButton() const { return style != ButtonStyle::separator && style != ButtonStyle::room; }
    bool isVisible(const Editor& ed) const {
        return pair == Pair::always || (pair == Pair::directional) == ed.marks.mnuUseDirectional;
    }
};

std::span<const PropertyRow> propertyRows();
std::vector<std::string> presetTexts(const PropertyRow& row);

// A preset was chosen. Without its node or link it changes nothing.
void choosePreset(Editor& ed, Host& host, const PropertyRow& row, const std::string& text);
// A button's face was clicked: asks for a value, or runs the button's command. Without its node or link
// it changes nothing and asks nothing.
void pressProperty(Editor& ed, Host& host, const PropertyRow& row);

// Tips of the global buttons once the settings are loaded.
void showGlobalValues(Editor& ed);
// Renews those that tell another value than the present one, whatever changed it.
void renewGlobalValues(Editor& ed);

}  // namespace zentrik
