#pragma once
// What is asked of texts everywhere. Letters are those of ASCII; no locale plays a part.

#include "basics/from_chars.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace zentrik {

inline std::string lowerCase(std::string_view text) {
    std::string lower(text);
    const auto lowered = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
    std::transform(lower.begin(), lower.end(), lower.begin(), lowered);
    return lower;
}

// The text without the blanks around it.
inline std::string_view trimmed(std::string_view text, std::string_view blanks = " \t") {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// The number that the whole text is; none where it is anything else, or beyond the type.
template <class Number>
std::optional<Number> readAll(std::string_view text) {
    Number value = 0;
    const char* end = text.data() + text.size();
    const auto result = from_chars(text.data(), end, value);
    if (result.ec != std::errc{} || result.ptr != end) return {};
    return value;
}

}  // namespace zentrik
