#pragma once
// Recovery copies: what a running program has not saved, in the folder "recovery" beside zoo. A copy is a
// project file whose last line, a comment, names the project.

#include "model/editor.h"
#include "project/reader.h"

#include <filesystem>
#include <optional>
#include <string>

namespace zentrik {

class Host;

inline constexpr const char* copySuffix = ".bot";

std::filesystem::path recoveryFolder(const std::string& programFolder);

std::string recoveryBytes(const Editor& ed);

struct RecoveryCopy {
    std::string name;  // the project's; one that a project may have
    Project project;
};
// None for a file that is no copy, or half of one.
std::optional<RecoveryCopy> readRecoveryCopy(const std::filesystem::path& path);

// Makes a copy the model, under its project's name. Writes nothing.
void restore(Editor& ed, Host& host, RecoveryCopy copy);

}  // namespace zentrik
