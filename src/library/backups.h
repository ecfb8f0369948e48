#pragma once
// Former versions of the projects: files NAME.STAMP.bot in the folder "backups" beside zoo, stamped with
// the moment they were replaced; NAME.STAMP.unsaved.bot held what never was the project's file. At most 20 of
// a project and 256 MiB in all; the oldest go first, never the one just kept, and a version that is larger
// than all may be together does not drive out others. Of 20 there is room for 10 of either kind, so that
// playing with a project does not drive out its saved versions.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zentrik {

inline constexpr std::size_t versionsOfAProject = 20;
inline constexpr std::uintmax_t bytesOfAllVersions = 256ULL << 20;

struct FormerVersion {
    std::filesystem::path path;
    std::string project;
    std::int64_t replaced = 0;  // milliseconds since 1970
    bool unsaved = false;
    std::uintmax_t size = 0;  // bytes
};

std::filesystem::path backupsFolder(const std::string& programFolder);

// Newest first.
std::vector<FormerVersion> formerVersions(const std::string& programFolder, const std::string& project);

// Keeps the present file of a project, if there is one, before it is replaced by these bytes or removed.
// What equals the replacement is not kept; what equals a version kept before takes that one's place as
// the newest. Gives the problem in words, or the empty text.
std::string keepFormer(const std::string& programFolder, const std::string& project,
                       std::optional<std::string_view> replacement);

// The same for a model that never was a file. Any thread may call both.
std::string keepVersion(const std::string& programFolder, const std::string& project, std::string_view bytes);
// Makes the versions of one project those of another. Gives the problem in words, or the empty text.
std::string renameVersions(const std::string& programFolder, const std::string& from, const std::string& to);

}  // namespace zentrik
