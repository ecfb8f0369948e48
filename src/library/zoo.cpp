#include "library/zoo.h"

#include "basics/text.h"
#include "files/path.h"
#include "project/columns.h"

#include <algorithm>
#include <system_error>

namespace zentrik {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view suffix = ".bot";
constexpr std::size_t longestName = 200;  // bytes; file systems take 255 with the suffix

// Names that stand for devices on some systems, whatever follows their first point.
bool isDeviceName(const std::string& name) {
    std::string device = lowerCase(name.substr(0, name.find('.')));
    device.erase(device.find_last_not_of(' ') + 1);
    for (const std::string_view reserved : {"con", "prn", "aux", "nul"})
        if (device == reserved) return true;
    const bool port = device.starts_with("com") || device.starts_with("lpt");
    return port && device.size() == 4 && device[3] >= '0' && device[3] <= '9';
}

}  // namespace

std::string nameProblem(const std::string& name) {
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 32 || c == 127; };
    if (name.find_first_not_of(' ') == std::string::npos || name == noFileFound)
        return "Please give the project a name.";
    if (name.size() > longestName) return "The project's name is too long.";
    if (name.find_first_of("/\\") != std::string::npos || name == "." || name == "..")
        return "A project's name cannot hold \"/\" or \"\\\", nor be \".\" or \"..\".";
    if (std::any_of(name.begin(), name.end(), isControl))
        return "A project's name cannot hold control characters.";
    if (isDeviceName(name)) return "\"" + name + "\" is the name of a device and cannot be a project's.";
    return {};
}

fs::path zooFolder(const std::string& programFolder) { return pathOf(programFolder) / "zoo"; }

fs::path projectPath(const std::string& programFolder, const std::string& name) {
    return zooFolder(programFolder) / pathOf(name + std::string(suffix));
}

std::vector<std::string> projectNames(const std::string& programFolder) {
    std::vector<std::string> names;
    std::error_code error;
    fs::directory_iterator entry(zooFolder(programFolder), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code unknown;
        std::string name = pathText(entry->path().filename());
        if (!name.ends_with(suffix) || !entry->is_regular_file(unknown)) continue;
        name.resize(name.size() - suffix.size());
        if (nameProblem(name).empty()) names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        const std::string lowerA = lowerCase(a), lowerB = lowerCase(b);
        return lowerA != lowerB ? lowerA < lowerB : a < b;
    });
    return names;
}

FileBytes readProjectFile(const fs::path& path) { return readFile(path, magicWord); }

}  // namespace zentrik
