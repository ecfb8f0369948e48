#pragma once
class QToolButton;

namespace zentrik {

// Has Alt+Down and the Menu key open the menu of a button that has the keyboard.
void openMenuByKeys(QToolButton& button);

}  // namespace zentrik
