#pragma once
#include <string>
#include <string_view>

namespace zentrik {

// Replaces a file by these bytes, wholly or not at all; every project file goes through here.
// The bytes are written aside and must have reached the disk before they take the old file's place.
// Gives the empty text, or what went wrong in words; then the old file, if any, is as it was.
std::string writeFile(const std::string& path, std::string_view bytes);

}  // namespace zentrik
