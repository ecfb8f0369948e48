#pragma once
// The command toolbar as one table, one row a button, left to right.

#include "ui/commands/commands.h"

#include <span>

namespace zentrik {

enum class ButtonStyle {
    button,
    check,      // two states
    dropDown,   // a face to click and a menu of presets
    separator,  // closes a group
    room,       // holds no button; the list beside it stands there
};

struct CommandRow {
    const char* key;
    const char* tip;
    const char* icon;
    ButtonStyle style;
    Command command;         // nullptr: nothing beyond the pressed state
    bool Buttons::*pressed;  // of two-state buttons

    bool isButton() const { return style != ButtonStyle::separator && style != ButtonStyle::room; }
};

std::span<const CommandRow> commandRows();

// What a click on a button does; a two-state button changes its state first.
void pressCommand(Editor& ed, Host& host, const CommandRow& row);

}  // namespace zentrik
