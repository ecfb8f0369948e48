#pragma once
// How editing commands find their target and how they end.

#include "model/editor.h"

#include <string>

namespace zentrik {

class Host;

inline constexpr const char* selectNodeMessage = "Select a node to execute this command!";

// True when a node, or a link with its first end, is selected that is there.
bool objectSelected(const Editor& ed);

// Marks the selected object as Marked; a link selected without a node makes its first end the
// selected node. False, with nothing marked anew, when nothing is selected.
bool markSelectedObject(Editor& ed);

// The selected record if it is in use, else null: what a new node or link can be joined to.
Node* usedSelectedNode(Editor& ed);
Link* usedSelectedLink(Editor& ed);

// Makes a node just created the selection.
void selectCreated(Editor& ed, std::int32_t node);

// A prerequisite is missing: says so in status panel 5 and beeps.
void refuse(Editor& ed, Host& host, const std::string& message);

}  // namespace zentrik
