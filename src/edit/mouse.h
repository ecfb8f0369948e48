#pragma once
// Building and editing a model with the mouse. Points are twips of the scene area. A double click
// arrives as press, release, double click, release: the second press is not delivered.

#include "model/editor.h"

namespace zentrik {

inline constexpr int leftButton = 1, rightButton = 2, middleButton = 4;

void picS_MouseDown(Editor& ed, int Button, float X, float Y);
void picS_MouseMove(Editor& ed, int Button, float X, float Y);  // whatever the buttons held
void picS_MouseUp(Editor& ed, int Button, float X, float Y);
void picS_DblClick(Editor& ed);

}  // namespace zentrik
