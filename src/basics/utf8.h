#pragma once
#include <string_view>

namespace zentrik {

// The front of a UTF-8 text, at most so many bytes of it, cut between two letters.
inline std::string_view utf8Front(std::string_view text, std::size_t most) {
    if (text.size() <= most) return text;
    const auto continues = [&](std::size_t at) {
        return (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
    };
    while (most > 0 && continues(most)) --most;
    return text.substr(0, most);
}

}  // namespace zentrik
