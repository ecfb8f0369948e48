#pragma once
// The small commands of the menus: default values, colours, the reset of the global settings, and what
// follows a change of a check mark.

#include "ui/commands/commands.h"

namespace zentrik {

void mnuResetGlobal_Click(Editor& ed, Host& host);

// Ask for a default value; an empty answer changes nothing.
void mnuGridSize_Click(Editor& ed, Host& host);  // accepts 50 twips and more
void mnuSetRadius_Click(Editor& ed, Host& host);
void mnuDefaultK_Click(Editor& ed, Host& host);
void mnuDefaultForce_Click(Editor& ed, Host& host);

void mnuLineColor_Click(Editor& ed, Host& host);
void mnuNodeColor_Click(Editor& ed, Host& host);
void mnuBackgroundColor_Click(Editor& ed, Host& host);

inline constexpr std::int32_t smallestRadius = -29;  // a node smaller still could not be hit
void setNodeRadius(Editor& ed, std::int32_t radius);

// Follow-ups of check marks.
void redrawScene(Editor& ed, Host& host);
void redrawDrawings(Editor& ed, Host& host);
void layOutAgain(Editor& ed, Host& host);
void followPathMark(Editor& ed, Host& host);

}  // namespace zentrik
