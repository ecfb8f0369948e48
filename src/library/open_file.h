#pragma once
// Files from anywhere that a person hands to the program. Paths are UTF-8.

#include "model/editor.h"

#include <string>

namespace zentrik {

class Host;

// Makes a project the model. One outside the library comes under its base name, as unsaved as any other
// change: saving puts it into the library. What cannot be read leaves the model alone; a message box tells.
void openFile(Editor& ed, Host& host, const std::string& path);

// Copies a picture into the folder of sprites, where another of that name keeps it. Gives the copy's name,
// or nothing; a message box then tells.
std::string copyPicture(const Editor& ed, Host& host, const std::string& path);

}  // namespace zentrik
