#pragma once
// What a command needs that paints.

#include "model/editor.h"

#include <QGuiApplication>
#include <memory>
#include <string>

namespace zentrik::cli {

// Fonts and pictures need one while they are used; a display they need not. None where there is one already.
std::unique_ptr<QGuiApplication> paintingApplication();

// A project's name is its file's; that of the standard input is the program's own.
std::string projectName(const std::string& file);
// The sprites of a project in the folder zoo are in the folder sprites beside that, as the program keeps
// them.
void findSprites(Editor& ed, const std::string& file);

}  // namespace zentrik::cli
