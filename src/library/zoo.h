#pragma once
// The folder of projects: which names may stand there, what it holds, and a file's bytes.

#include "files/read_file.h"

#include <filesystem>
#include <string>
#include <vector>

namespace zentrik {

// What the project list's text says while there are no projects.
inline constexpr const char* noFileFound = "no file found";

// Why a name cannot be a project's, in words; the empty text when it can. A name must stay within the
// folder and mean the same file on every system.
std::string nameProblem(const std::string& name);

std::filesystem::path zooFolder(const std::string& programFolder);
std::filesystem::path projectPath(const std::string& programFolder, const std::string& name);

// Names of the projects in the folder, sorted without regard to case.
std::vector<std::string> projectNames(const std::string& programFolder);

// The bytes of a project file. Of a file that is no project only its first few, which say so.
FileBytes readProjectFile(const std::filesystem::path& path);

}  // namespace zentrik
