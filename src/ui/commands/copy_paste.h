#pragma once
// An object as the text of a project that holds nothing else: what one program copies, another can paste
// or save as a file.

#include "ui/commands/commands.h"

#include <string>

namespace zentrik {

// Of the selected node's or link's object; status panel 5 tells, also that nothing is selected.
void copyObject(Editor& ed, Host& host);
// Adds the nodes and links of project text, their middle at a place of the scene (twips) as far as the scene
// has room. What is no project changes nothing, and status panel 5 tells.
void pasteObject(Editor& ed, const std::string& text, PointF middle);

}  // namespace zentrik
