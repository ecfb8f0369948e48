#include "library/backups.h"

#include "files/read_file.h"
#include "files/time_stamp.h"
#include "files/write_file.h"
#include "files/write_target.h"
#include "library/zoo.h"

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <mutex>
#include <system_error>

namespace zentrik {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view suffix = ".bot", unsavedSuffix = ".unsaved.bot";

fs::path versionPath(const fs::path& folder, const std::string& project, std::int64_t replaced,
                     bool unsaved) {
    return folder / (project + "." + stampText(replaced) + std::string(unsaved ? unsavedSuffix : suffix));
}

// The version a file of the folder is, by its name.
std::optional<FormerVersion> versionOf(const fs::directory_entry& entry) {
    std::error_code error;
    if (entry.symlink_status(error).type() != fs::file_type::regular) return {};
    const std::string name = entry.path().filename().string();
    const bool unsaved = name.ends_with(unsavedSuffix);
    const std::size_t ending = 1 + stampLength + (unsaved ? unsavedSuffix : suffix).size();
    if (name.size() <= ending || !name.ends_with(suffix) || name[name.size() - ending] != '.') return {};
    const auto replaced = stampOf(std::string_view(name).substr(name.size() - ending + 1, stampLength));
    if (!replaced) return {};
    return FormerVersion{entry.path(), name.substr(0, name.size() - ending), *replaced, unsaved,
                         entry.file_size(error)};
}

// Oldest first.
std::vector<FormerVersion> allVersions(const fs::path& folder) {
    std::vector<FormerVersion> versions;
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        if (auto version = versionOf(*entry)) versions.push_back(std::move(*version));
    std::sort(versions.begin(), versions.end(), [](const FormerVersion& a, const FormerVersion& b) {
        return a.replaced != b.replaced ? a.replaced < b.replaced : a.path < b.path;
    });
    return versions;
}

bool holds(const fs::path& path, std::string_view bytes) {
    std::error_code error;
    if (fs::file_size(path, error) != bytes.size() || error) return false;
    std::ifstream file(path, std::ios::binary);
    return std::equal(bytes.begin(), bytes.end(), std::istreambuf_iterator<char>(file), {});
}

bool sameContents(const fs::path& a, const fs::path& b) {
    std::error_code error;
    if (fs::equivalent(a, b, error)) return true;
    if (fs::file_size(a, error) != fs::file_size(b, error) || error) return false;
    std::ifstream first(a, std::ios::binary), second(b, std::ios::binary);
    using Bytes = std::istreambuf_iterator<char>;
    return first && second && std::equal(Bytes(first), Bytes(), Bytes(second), Bytes());
}

// A second name for the same file costs neither time nor space, and a save replaces the first one only.
// Where the disk knows no second names, a copy.
std::string putVersion(const fs::path& file, const fs::path& version) {
    if (::link(file.c_str(), version.c_str()) == 0) return {};
    const FileBytes whole = readFile(file);
    if (!whole.problem.empty()) return whole.problem;
    if (std::string problem = writeFile(version.string(), whole.bytes); !problem.empty()) return problem;
    std::error_code error;
    fs::last_write_time(version, fs::last_write_time(file, error), error);
    return {};
}

void dropOldest(const fs::path& folder, const std::string& project, const fs::path& justKept) {
    const std::vector<FormerVersion> versions = allVersions(folder);
    const auto isMine = [&](const FormerVersion& version) { return version.project == project; };
    const auto weight = [](const FormerVersion& v) { return v.size > bytesOfAllVersions ? 0 : v.size; };
    std::size_t mine[2] = {0, 0};  // saved and unsaved
    std::uintmax_t sum = 0;
    for (const FormerVersion& version : versions) {
        sum += weight(version);
        if (isMine(version)) ++mine[version.unsaved];
    }
    for (const FormerVersion& version : versions) {
        const bool tooMany = isMine(version) && mine[0] + mine[1] > versionsOfAProject &&
                             mine[version.unsaved] >= mine[!version.unsaved];
        const bool tooLarge = sum > bytesOfAllVersions && weight(version) > 0;
        std::error_code error;
        if (version.path == justKept || !(tooMany || tooLarge) || !fs::remove(version.path, error)) continue;
        sum -= weight(version);
        if (isMine(version)) --mine[version.unsaved];
    }
}

// A save and a worker's kept version may come at once; each must see what the other has kept and dropped.
std::mutex oneAtATime;

// Keeps something as the newest version: put makes its file, unless it equals a version kept before, which
// then takes that place as one made at that time.
template <class Equals, class Put>
std::string keep(const std::string& programFolder, const std::string& project, bool unsaved,
                 fs::file_time_type made, Equals equals, Put put) {
    const std::lock_guard guard(oneAtATime);
    const fs::path folder = backupsFolder(programFolder);
    std::error_code error;
    fs::create_directory(folder, error);
    const std::vector<FormerVersion> versions = formerVersions(programFolder, project);
    // A clock put back must not make the newest version the oldest.
    const std::int64_t least = versions.empty() ? 0 : versions.front().replaced + 1;
    const auto kept = std::find_if(versions.begin(), versions.end(),
                                   [&](const FormerVersion& v) { return equals(v.path); });
    if (kept != versions.end()) unsaved = unsaved && kept->unsaved;
    const fs::path version = versionPath(folder, project, std::max(millisecondsNow(), least), unsaved);
    if (kept != versions.end()) {
        fs::rename(kept->path, version, error);
        if (error) return error.message() + ".";
        fs::last_write_time(version, made, error);
    } else if (std::string problem = put(version); !problem.empty()) {
        return problem;
    }
    if (std::string problem = syncFolder(folder.string()); !problem.empty()) return problem;
    dropOldest(folder, project, version);
    return {};
}

}  // namespace

fs::path backupsFolder(const std::string& programFolder) {
    return zooFolder(programFolder).parent_path() / "backups";
}

std::vector<FormerVersion> formerVersions(const std::string& programFolder, const std::string& project) {
    std::vector<FormerVersion> versions = allVersions(backupsFolder(programFolder));
    std::erase_if(versions, [&](const FormerVersion& version) { return version.project != project; });
    std::reverse(versions.begin(), versions.end());
    return versions;
}

std::string keepFormer(const std::string& programFolder, const std::string& project,
                       std::optional<std::string_view> replacement) {
    const WriteTarget file = writeTarget(projectPath(programFolder, project).string(), programFolder);
    if (!file.problem.empty()) return file.problem;
    if (!file.exists || (replacement && holds(file.path, *replacement))) return {};
    std::error_code error;
    const fs::file_time_type saved = fs::last_write_time(file.path, error);
    return keep(
        programFolder, project, false, saved,
        [&](const fs::path& version) { return sameContents(version, file.path); },
        [&](const fs::path& version) { return putVersion(file.path, version); });
}

std::string keepVersion(const std::string& programFolder, const std::string& project,
                        std::string_view bytes) {
    return keep(
        programFolder, project, true, fs::file_time_type::clock::now(),
        [&](const fs::path& version) { return holds(version, bytes); },
        [&](const fs::path& version) { return writeFile(version.string(), bytes); });
}

std::string renameVersions(const std::string& programFolder, const std::string& from, const std::string& to) {
    const fs::path folder = backupsFolder(programFolder);
    std::string problem;
    for (const FormerVersion& version : formerVersions(programFolder, from)) {
        const fs::path target = versionPath(folder, to, version.replaced, version.unsaved);
        std::error_code error;
        if (fs::exists(fs::symlink_status(target, error)))
            problem = target.filename().string() + " exists already.";
        else if (fs::rename(version.path, target, error); error)
            problem = error.message() + ".";
    }
    return problem;
}

}  // namespace zentrik
