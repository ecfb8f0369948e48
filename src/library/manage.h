#pragma once
// What can be done with the file of the project that the list's text names.

#include "model/editor.h"
#include "project/reader.h"

#include <optional>

namespace zentrik {

class Host;

// Lets the person choose among the former versions. None when there are none, when none was chosen or when
// it cannot be read; message boxes tell.
std::optional<Project> chooseEarlierVersion(Editor& ed, Host& host);
// Makes a version the model. No file changes: only a save makes it the project's.
void showEarlierVersion(Editor& ed, Host& host, Project version);

// Asks for another name, which must be free; the former versions follow.
void renameProject(Editor& ed, Host& host);
// Asks first, then moves the file to the desktop's trash, or to the former versions where there is none.
// The model stays as it is.
void deleteProject(Editor& ed, Host& host);
void showFolder(Editor& ed, Host& host);

}  // namespace zentrik
