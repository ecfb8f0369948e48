#pragma once
// The menu bar as one table, one row an entry.

#include "ui/commands/commands.h"

#include <span>

namespace zentrik {

struct MenuRow {
    const char* name;      // "mnu..."
    const char* caption;   // "&" marks the access key, "-" is a separator line
    const char* shortcut;  // portable text, nullptr for none
    Command command;       // nullptr: nothing beyond the check mark
    bool Marks::*mark;     // the check mark it inverts before the command runs; nullptr for none

    bool isMenu() const { return command == nullptr && mark == nullptr && !isSeparator(); }
    bool isSeparator() const { return caption[0] == '-'; }
};

// Every menu is followed by its entries.
std::span<const MenuRow> menuRows();

// What a click on an entry does.
void chooseMenu(Editor& ed, Host& host, const MenuRow& row);

}  // namespace zentrik
