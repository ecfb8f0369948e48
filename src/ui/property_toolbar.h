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
    const char* key;
    const char* icon;
    ButtonStyle style;
    Owner owner;
    Pair pair;
    std::string Tips::*tip;        // what hovering shows
    const char* fixedTip;          // the same for buttons whose tip never changes
    const Access* access;          // of drop-down buttons
    std::string_view presets;      // texts of the preset menu, parted by blanks; "''" is an empty text
    const char* presetLabel;       // before the value in the tip, after a preset was chosen
    std::string Tips::*presetTip;  // whose tip that is
    const char* startLabel;        // the same at start-up; nullptr for none
    const char* prompt;            // nullptr: the face does nothing
    const char* label;             // the same after an answer
    const char* confirmation;      // before the value in status panel 5; empty for none
    bool redrawStrip;              // the phase strip shows this quantity
    bool Buttons::*pressed;        // of two-state buttons
    Command command;               // of buttons that are not drop-down

    bool isButton() const { return style != ButtonStyle::separator && style != ButtonStyle::room; }
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
