#pragma once
// A page in which a creature lives: the project, the program's own step as a module for browsers, and a
// script that draws and listens. Equal models make equal bytes.

#include "model/editor.h"

#include <QByteArray>
#include <string>

namespace zentrik {

// Why this build makes no live pages, in words; empty where it does.
std::string whyNoLivePages();

// The file of a page that has all in itself. `name` is the project's, as a file's.
std::string livePage(const Editor& ed, const std::string& name);

// Pages that share one script, which holds the module, in the folder above them.
inline constexpr const char* sharedScript = "zentrik.js";
QByteArray sharedScriptText();
QByteArray sharingLivePage(const Editor& ed, const std::string& name);

}  // namespace zentrik
