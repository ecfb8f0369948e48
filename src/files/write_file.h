#pragma once
#include <string>
#include <string_view>

namespace zentrik {

// Replaces a file by these bytes, wholly or not at all; everything the program keeps goes through here.
// The bytes are written aside and must have reached the disk before they take the old file's place, and
// so must the folder's entry of them. Any thread may call it.
// A link is followed only to an ordinary file inside the folder `within` (by default the file's own
// folder); what is no ordinary file is never replaced.
// Gives the empty text, or what went wrong in words; then the old file, if any, is as it was, unless the
// text says that the new one may not survive a power cut.
std::string writeFile(const std::string& path, std::string_view bytes, const std::string& within = {});

// Makes the entries of a folder reach the disk: what was created, renamed or removed in it. Gives the
// problem in words, or the empty text, also where folders cannot be flushed.
std::string syncFolder(const std::string& folder);

// Removes what killed saves left in a folder: ordinary files of writeFile's own naming, an hour old.
void sweepLeftovers(const std::string& folder);

}  // namespace zentrik
