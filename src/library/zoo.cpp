#include "library/zoo.h"

#include "project/columns.h"
#include "project/forms.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <system_error>

namespace zentrik {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view suffix = ".bot";
constexpr std::size_t longestName = 200;              // bytes; file systems take 255 with the suffix
constexpr std::uintmax_t largestFile = 256ULL << 20;  // bytes; some two million records

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char c) { return zentrik::lowered(c); });
    return text;
}

// Names that stand for devices on some systems, whatever follows their first point.
bool isDeviceName(const std::string& name) {
    std::string device = lowered(name.substr(0, name.find('.')));
    device.erase(device.find_last_not_of(' ') + 1);
    for (const std::string_view reserved : {"con", "prn", "aux", "nul"})
        if (device == reserved) return true;
    const bool port = device.starts_with("com") || device.starts_with("lpt");
    return port && device.size() == 4 && device[3] >= '0' && device[3] <= '9';
}

fs::path pathOf(const std::string& utf8) { return fs::path(std::u8string(utf8.begin(), utf8.end())); }

// The bytes of an ordinary file, or only its first few when it does not begin with a word.
FileBytes readFrom(const fs::path& path, std::string_view word) {
    // Only an ordinary file has a size and an end; a device or pipe might keep us waiting for ever.
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) return {"", "There is no such file."};
    if (!fs::exists(status)) return {"", "It cannot be looked at: " + error.message() + "."};
    if (!fs::is_regular_file(status)) return {"", "It is not an ordinary file."};
    const std::uintmax_t size = fs::file_size(path, error);
    std::ifstream file(path, std::ios::binary);
    if (error || !file) return {"", "It cannot be opened."};

    std::string bytes(word.size(), '\0');
    const auto readTo = [&](std::size_t from) {
        file.read(bytes.data() + from, static_cast<std::streamsize>(bytes.size() - from));
        bytes.resize(from + static_cast<std::size_t>(file.gcount()));
    };
    readTo(0);
    if (bytes == word && size > largestFile) return {"", "It is too large."};
    if (bytes == word && size > bytes.size()) {
        bytes.resize(static_cast<std::size_t>(size));
        readTo(word.size());
    }
    if (file.bad()) return {"", "It cannot be read."};
    return {std::move(bytes), ""};
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

std::string withoutOuterBlanks(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

fs::path zooFolder(const std::string& programFolder) { return pathOf(programFolder) / "zoo"; }

fs::path projectPath(const std::string& programFolder, const std::string& name) {
    return zooFolder(programFolder) / pathOf(name + std::string(suffix));
}

std::string pathText(const fs::path& path) {
    const std::u8string text = path.generic_u8string();
    return std::string(text.begin(), text.end());
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
        const std::string lowerA = lowered(a), lowerB = lowered(b);
        return lowerA != lowerB ? lowerA < lowerB : a < b;
    });
    return names;
}

FileBytes readProjectFile(const fs::path& path) { return readFrom(path, magicWord); }
FileBytes readWholeFile(const fs::path& path) { return readFrom(path, ""); }

}  // namespace zentrik
