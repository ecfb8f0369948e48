// How a text stands as a value in the settings file, and back.

#include "settings/settings_text.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace zentrik {

namespace {

// A letter behind a backslash, and what it stands for.
constexpr std::string_view escapes = "abfnrtv\"?'\\", escaped = "\a\b\f\n\r\t\v\"?'\\";
static_assert(escapes.size() == escaped.size());

bool isHexDigit(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

void appendUtf8(std::string& out, std::uint32_t code) {
    const auto byte = [&out](std::uint32_t value) { out += static_cast<char>(value); };
    const auto rest = [&](int shift) { byte(0x80U | ((code >> shift) & 0x3FU)); };
    if (code < 0x80U) return byte(code);
    if (code < 0x800U) {
        byte(0xC0U | (code >> 6));
    } else {
        byte(0xE0U | ((code >> 12) & 0x0FU));
        rest(6);
    }
    rest(0);
}

// What stands behind a backslash; takes it from the value.
void unescape(std::string& out, std::string_view& value) {
    if (value.empty()) return;
    const char kind = value.front();
    value.remove_prefix(1);
    if (const std::size_t at = escapes.find(kind); at != std::string_view::npos)
        return out.push_back(escaped[at]);
    const bool octal = kind >= '0' && kind <= '7';
    if (kind != 'x' && !octal) return;
    const char* from = value.data() - (octal ? 1 : 0);
    std::uint32_t code = 0;
    const auto result = std::from_chars(from, value.data() + value.size(), code, octal ? 8 : 16);
    value.remove_prefix(static_cast<std::size_t>(std::max(result.ptr, value.data()) - value.data()));
    appendUtf8(out, code & 0xFFFFU);
}

}  // namespace

std::string settingValue(const std::string& text) {
    constexpr std::string_view digits = "0123456789abcdef";
    const bool quoted =
        text.find_first_of(";,=\"\\") != std::string::npos || text.starts_with(' ') || text.ends_with(' ');
    std::string value = text.starts_with('@') ? "@" : "";
    bool afterCode = false;  // a digit would be taken for one of the code's
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool code = byte < 32 || byte == 127 || (afterCode && isHexDigit(c));
        if (code)
            value.append({'\\', 'x', digits[byte / 16], digits[byte % 16]});
        else if (c == '"' || c == '\\')
            value.append({'\\', c});
        else
            value += c;
        afterCode = code;
    }
    return quoted ? "\"" + value + "\"" : value;
}

std::string settingFromValue(std::string_view value) {
    std::string text;
    std::size_t kept = 0;  // blanks before it are the value's own
    bool quoted = false, start = true;
    while (!value.empty()) {
        const char c = value.front();
        value.remove_prefix(1);
        const bool blank = c == ' ' || c == '\t';
        if (!quoted && c == ';') break;
        if (c == '"') {
            quoted = !quoted;
        } else if (c == '\\') {
            unescape(text, value);
        } else if (!quoted && c == ',') {
            text.resize(kept);
            text += c;
        } else if (quoted || !blank || !start) {
            text += c;
        }
        if (quoted || !blank) kept = text.size();
        start = !quoted && (c == ',' || (start && blank));
    }
    text.resize(kept);
    return text.starts_with('@') ? text.substr(text.starts_with("@@") ? 1 : 0) : text;
}

}  // namespace zentrik
