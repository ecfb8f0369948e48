#pragma once

namespace zentrik {

// Where the desktop has no font at all, the program's own letters menus and dialogs too, and the standard
// error says what is missing. To be called before the first widget is made.
void keepTextsLegible();

}  // namespace zentrik
