#pragma once
// The project list and its commands. Projects are the files zoo/NAME.bot in the program's folder.

#include "model/editor.h"

namespace zentrik {

class Host;

// Saves the model under a name and lists a new name. A message box tells of a name that is refused and
// of a save that failed; the old file is then whole, and the answer false.
bool SaveFile(Editor& ed, Host& host, const std::string& name);

// Loads a project into the model, which the caller has cleared. A message box tells why a file was not
// read, or not to its end; in the latter case what came before is loaded. Bytes of another kind leave the
// model as it is.
void OpenFile(Editor& ed, Host& host, const std::string& name);

// Refills the list. With UseResume selects, and so loads, the project "resume" or else the first one.
void LoadListOfFileNames(Editor& ed, Host& host, bool UseResume);

// Loads the chosen entry of the list, counted from 0, in place of the model; -1 only clears.
void lstSaved_Click(Editor& ed, Host& host, std::int32_t entry);
// Enter in the list's text: saves under it.
void lstSaved_Enter(Editor& ed, Host& host);

// The save button, and the reload button less stopping the animation, which is the caller's. Reloading
// under a name that is refused or that has no file says so and leaves the model alone.
void saveProject(Editor& ed, Host& host);
void reloadProject(Editor& ed, Host& host);

void mnuSetTitle_Click(Editor& ed, Host& host);
// Saves the model as "email", puts that file's text on the clipboard and opens a mail to the author.
void mnuEmail_Click(Editor& ed, Host& host);

}  // namespace zentrik
