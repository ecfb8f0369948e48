#pragma once
// The folder of projects: which names may stand there, what it holds, and a file's bytes.

#include <filesystem>
#include <string>
#include <vector>

namespace zentrik {

// What the project list's text says while there are no projects.
inline constexpr const char* noFileFound = "no file found";

// Why a name cannot be a project's, in words; the empty text when it can. A name must stay within the
// folder and mean the same file on every system.
std::string nameProblem(const std::string& name);
std::string withoutOuterBlanks(const std::string& text);

std::filesystem::path zooFolder(const std::string& programFolder);
std::filesystem::path projectPath(const std::string& programFolder, const std::string& name);
// UTF-8, with slashes.
std::string pathText(const std::filesystem::path& path);

// Names of the projects in the folder, sorted without regard to case.
std::vector<std::string> projectNames(const std::string& programFolder);

struct FileBytes {
    std::string bytes;
    std::string problem;  // in words; empty when it was read
};
// The bytes of a project file. Of a file that is no project only its first few, which say so.
FileBytes readProjectFile(const std::filesystem::path& path);
// The bytes of any ordinary file up to 256 MiB.
FileBytes readWholeFile(const std::filesystem::path& path);

}  // namespace zentrik
