#include "files/read_file.h"

#include <cstdint>
#include <fstream>
#include <system_error>

namespace zentrik {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t largestFile = 256ULL << 20;  // bytes

}  // namespace

FileBytes readFile(const fs::path& path, std::string_view word) {
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

}  // namespace zentrik
