#pragma once
// Names of files. A text that names one is UTF-8, whatever the system has.

#include <filesystem>
#include <string>

namespace zentrik {

std::filesystem::path pathOf(const std::string& utf8);
std::string pathText(const std::filesystem::path& path);  // with slashes

// Whether something of that name may be there: a file, a folder, a link to nothing, or what cannot be seen.
bool isThere(const std::filesystem::path& path);

// What an error of the system means, as a sentence.
std::string inWords(int error);

}  // namespace zentrik
