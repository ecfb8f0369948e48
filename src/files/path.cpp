#include "files/path.h"

#include <system_error>

namespace zentrik {

namespace fs = std::filesystem;

fs::path pathOf(const std::string& utf8) { return fs::path(std::u8string(utf8.begin(), utf8.end())); }

std::string pathText(const fs::path& path) {
    const std::u8string text = path.generic_u8string();
    return std::string(text.begin(), text.end());
}

bool isThere(const fs::path& path) {
    std::error_code error;
    return fs::symlink_status(path, error).type() != fs::file_type::not_found;
}

std::string inWords(int error) { return std::generic_category().message(error) + "."; }

}  // namespace zentrik
