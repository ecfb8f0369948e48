#pragma once
#include <filesystem>
#include <string>
#include <string_view>

namespace zentrik {

struct FileBytes {
    std::string bytes;
    std::string problem;  // in words; empty when it was read
};
// The bytes of an ordinary file up to 256 MiB, some two million records of a project; only its first few when
// it does not begin with a word.
FileBytes readFile(const std::filesystem::path& path, std::string_view word = {});

}  // namespace zentrik
