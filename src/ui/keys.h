#pragma once
// What the keyboard does beside the menus' shortcuts, as one table. The window wires it, the manual lists it.

#include "ui/commands/commands.h"

#include <span>

namespace zentrik {

// Where a key works: anywhere in the window, in both drawing areas, or in one of them.
enum class KeyArea { window, areas, scene, strip };

// What the window itself does for a key.
enum class KeyAct {
    press,     // a button of the command toolbar
    command,   // a procedure
    pointer,   // the scene's own: moves its pointer, clicks, drags
    openList,  // of projects
    quit,
    help,
    goToPart,  // the next part of the window, or the one before
    undo,
    redo,
    travel,  // through the run
    copy,
    paste,
    copyPicture,
    plot,          // opened, or closed
    plotSelected,  // node and link
    presets,       // of the button that has the keyboard
};

struct KeyRow {
    const char* keys;    // portable texts, parted by blanks where several belong together
    const char* effect;  // as the manual says it
    KeyArea area;
    KeyAct act;
    // In the command toolbar, that does the same: its status tip names the key.
    const char* control = nullptr;
    Command command = nullptr;  // of KeyAct::command
    const char* what = "";      // it is called when it can be undone
    int steps = 0;              // of KeyAct::travel and goToPart; back if negative
};

std::span<const KeyRow> keyRows();
// The first key that does this.
const char* keyFor(KeyAct act);

}  // namespace zentrik
