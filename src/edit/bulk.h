#pragma once
// Commands that set, scale or remove one property of many nodes or links. They work on every slot of
// the model, used or not; with "Apply Changes Only to Selected Object" checked on the selected object,
// and without a selection they then refuse. One that asks for a value first changes nothing at an empty
// answer. Freed slots are taken out by compaction.

#include "model/editor.h"

#include <algorithm>
#include <string_view>

namespace zentrik {

class Host;

// The one that the menu entry of this name runs; there must be one.
void runBulk(Editor& ed, Host& host, std::string_view name);

// An entry's name as a template argument, so that a menu's row can name the procedure.
template <std::size_t size>
struct EntryName {
    char text[size];
    consteval EntryName(const char (&name)[size]) { std::copy(name, name + size, text); }
};
template <EntryName name>
void bulk(Editor& ed, Host& host) {
    runBulk(ed, host, name.text);
}

void mnuRemoveFreeNodes_Click(Editor& ed, Host& host);
// Run several of the others in turn.
void mnuResetAllNodes_Click(Editor& ed, Host& host);
void mnuResetAllLinks_Click(Editor& ed, Host& host);

}  // namespace zentrik
