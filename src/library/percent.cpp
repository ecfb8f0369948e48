#include "library/percent.h"

namespace zentrik {

std::string percentEncoded(const std::string& text, std::string_view plain) {
    constexpr std::string_view always = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (always.find(c) != std::string_view::npos || plain.find(c) != std::string_view::npos)
            encoded += c;
        else
            encoded.append({'%', digits[byte / 16], digits[byte % 16]});
    }
    return encoded;
}

}  // namespace zentrik
