#include "basics/numbers.h"

#include "basics/from_chars.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace zentrik {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Length of the longest numeric part at the front of text: sign, digits, point, exponent.
std::size_t numericLength(std::string_view text) {
    std::size_t at = 0;
    auto skipDigits = [&] {
        const std::size_t from = at;
        while (at < text.size() && isDigit(text[at])) ++at;
        return at - from;
    };
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
    std::size_t digits = skipDigits();
    if (at < text.size() && text[at] == '.') {
        ++at;
        digits += skipDigits();
    }
    if (digits == 0) return 0;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        const std::size_t mantissaEnd = at++;
        if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
        if (skipDigits() == 0) at = mantissaEnd;
    }
    return at;
}

std::string_view withoutBlanks(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    return text;
}

template <class Real>
std::size_t writeGeneral(char (&buffer)[40], Real value, int digits) {
    if (value == 0) value = 0;  // no "-0"
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, digits).ptr;
    for (char* c = buffer; c != end; ++c)
        if (*c == 'e') *c = 'E';
    return static_cast<std::size_t>(end - buffer);
}

}  // namespace

float toReal(double value) {
    constexpr float largest = std::numeric_limits<float>::max();
    if (std::isnan(value)) return 0;
    if (value >= static_cast<double>(largest)) return largest;
    if (value <= -static_cast<double>(largest)) return -largest;
    return static_cast<float>(value);
}

bool hasLeadingNumber(std::string_view text) { return numericLength(withoutBlanks(text)) > 0; }

double leadingNumber(std::string_view text) {
    text = withoutBlanks(text);
    text = text.substr(0, numericLength(text));
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && (negative || text.front() == '+')) text.remove_prefix(1);
    double value = 0;
    const auto result = from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        const std::size_t exponent = text.find_first_of("eE");
        const bool tiny =
            exponent != std::string_view::npos && exponent + 1 < text.size() && text[exponent + 1] == '-';
        value = tiny ? 0 : std::numeric_limits<double>::max();
    }
    if (value == 0) return 0;
    return negative ? -value : value;
}

std::string realText(float value) {
    std::string text;
    appendReal(text, value);
    return text;
}

std::string realText(double value) {
    char buffer[40];
    return std::string(buffer, writeGeneral(buffer, value, 15));
}

void appendReal(std::string& out, float value) {
    char buffer[40];
    // Whole numbers are by far the most frequent and need no digit search.
    if (std::fabs(value) < 1e6f && value == std::trunc(value)) {
        const auto end = std::to_chars(buffer, buffer + sizeof buffer, static_cast<int>(value)).ptr;
        out.append(buffer, end);
        return;
    }
    out.append(buffer, writeGeneral(buffer, value, 7));
}

std::string fixedText(double value, int decimals) {
    char buffer[400];
    // The decimal that the 32-bit real stands for, a hair away from zero: only exact halves notice.
    double decimal = 0;
    const auto shown = std::to_chars(buffer, buffer + sizeof buffer, static_cast<float>(value)).ptr;
    from_chars(buffer, shown, decimal);
    decimal = std::nextafter(decimal, std::copysign(std::numeric_limits<double>::infinity(), decimal));
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, decimal, std::chars_format::fixed, decimals).ptr;
    std::string text(buffer, end);
    const bool onlyZeros = text.find_first_not_of("-0.") == std::string::npos;
    if (onlyZeros && text.front() == '-') text.erase(0, 1);
    return text;
}

std::string clockText(float time) { return " " + fixedText(static_cast<double>(time), 3); }

}  // namespace zentrik
