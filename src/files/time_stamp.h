#pragma once
// Moments as they stand in file names: "20261123-054105-123", Greenwich time, sorted as they follow.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zentrik {

inline constexpr std::size_t stampLength = 19;

std::int64_t millisecondsNow();  // since 1970

// Milliseconds since 1970; the years 1970 to 9999.
std::string stampText(std::int64_t milliseconds);
// None when the text is no such moment.
std::optional<std::int64_t> stampOf(std::string_view text);

}  // namespace zentrik
