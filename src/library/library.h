#pragma once
// The project list and its commands. Projects are the files zoo/NAME.bot in the program's folder.

#include "model/editor.h"

namespace zentrik {

class Host;

// Saves the model under a name and lists a new name; what the file held before is kept among the former
// versions (library/backups.h), or else the person is asked. A message box tells of a name that is refused
// and of a save that failed; the old file is then whole, and the answer false.
bool SaveFile(Editor& ed, Host& host, const std::string& name);

// Loads a project in place of the model. One that cannot be read to its end is not loaded: a message box
// tells why, and the model stays as it is.
void OpenFile(Editor& ed, Host& host, const std::string& name);

// Refills the list. With UseResume selects, and so loads, the project "resume" or else the first one.
void LoadListOfFileNames(Editor& ed, Host& host, bool UseResume);

// Loads the chosen entry of the list, counted from 0, in place of the model; -1 only clears. One that is
// no project at all leaves an empty scene; a damaged one leaves the model and the list's text alone.
void lstSaved_Click(Editor& ed, Host& host, std::int32_t entry);
// Enter in the list's text: saves under it.
void lstSaved_Enter(Editor& ed, Host& host);

// The save button, and the reload button less stopping the animation, which is the caller's. Reloading
// what is damaged, or a name that is refused or has no file, says so and leaves the model alone.
void saveProject(Editor& ed, Host& host);
void reloadProject(Editor& ed, Host& host);

// Whether the list's text names a project that came with the program, and its file is another or gone.
bool sampleDiffers(const Editor& ed, Host& host);
// Puts the one that came with the program in that file's place, as a save would, and loads it; stopping the
// animation is the caller's.
void restoreSample(Editor& ed, Host& host);

void mnuSetTitle_Click(Editor& ed, Host& host);
// Saves the model as "email", puts that file's text on the clipboard and opens a mail to the author.
void mnuEmail_Click(Editor& ed, Host& host);

}  // namespace zentrik
