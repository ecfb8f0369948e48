#pragma once
// Which file a save may replace.

#include <filesystem>
#include <string>

namespace zentrik {

struct WriteTarget {
    std::filesystem::path path;  // links followed
    std::string problem;         // in words; empty when it may be written
    bool exists = false;
};

// An ordinary file, a place where nothing is yet, or a link to an ordinary file inside the folder
// `within`; no text stands for the file's own folder.
WriteTarget writeTarget(const std::string& path, const std::string& within);

}  // namespace zentrik
