#include "files/write_target.h"

#include <unistd.h>

#include <algorithm>
#include <system_error>

namespace zentrik {

namespace fs = std::filesystem;

namespace {

bool isInside(const fs::path& file, const fs::path& folder) {
    return std::mismatch(folder.begin(), folder.end(), file.begin(), file.end()).first == folder.end();
}

WriteTarget linkTarget(const fs::path& link, const fs::path& within) {
    std::error_code dangling, error;
    const fs::path file = fs::canonical(link, dangling);
    if (dangling) return {link, "It is a link to nothing."};
    if (!fs::is_regular_file(file, error))
        return {link, "It is a link to something that is no ordinary file."};
    const fs::path folder = fs::canonical(within, error);
    if (error || !isInside(file, folder))
        return {link, "It is a link to " + file.string() + ", which is outside " + within.string() + "."};
    return {file, "", true};
}

WriteTarget present(WriteTarget target) {
    if (target.problem.empty() && ::access(target.path.c_str(), W_OK) != 0)
        target.problem = "It is write-protected.";
    return target;
}

}  // namespace

WriteTarget writeTarget(const std::string& path, const std::string& within) {
    const fs::path file(path);
    std::error_code error;
    const fs::file_status status = fs::symlink_status(file, error);
    switch (status.type()) {
        case fs::file_type::not_found:
            return {file, file.has_filename() ? "" : "It has no name."};
        case fs::file_type::regular:
            return present({file, "", true});
        case fs::file_type::symlink:
            return present(linkTarget(file, within.empty() ? file.parent_path() : fs::path(within)));
        case fs::file_type::directory:
            return {file, "It is a folder."};
        case fs::file_type::none:
            return {file, error.message() + "."};
        default:
            return {file, "It is no ordinary file."};
    }
}

}  // namespace zentrik
