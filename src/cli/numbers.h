#pragma once
// Numbers of the command line, never a locale's.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zentrik::cli {

// The text must be one finite number from its first character to its last.
std::optional<double> readNumber(std::string_view text);
std::optional<std::int64_t> readWhole(std::string_view text);

// "3", "3..9" or several of these separated by commas, from 1 to `last`; "all" is all of them. Throws a
// Failure that calls them `what` for anything else.
std::vector<std::int32_t> readList(std::string_view text, std::int32_t last, const std::string& what);

// The parts of a text between the marks.
std::vector<std::string> split(std::string_view text, char mark);

}  // namespace zentrik::cli
