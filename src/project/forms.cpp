#include "project/forms.h"

#include "basics/from_chars.h"
#include "basics/numbers.h"
#include "basics/text.h"
#include "project/columns.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace zentrik {

namespace {

// For what the direct way does not take: a plus sign, blanks, decimals, magnitudes beyond the type.
bool readSlowly(std::string_view text, double& value) {
    text = trimmed(text);
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
    const char* end = text.data() + text.size();
    const auto result = from_chars(text.data(), end, value);
    if (result.ptr != end || result.ec == std::errc::invalid_argument) return false;
    if (result.ec == std::errc::result_out_of_range) value = leadingNumber(text);
    return std::isfinite(value);
}

bool fitsItsField(const std::string& text) {
    return text.find_first_of("\r\n") == std::string::npos &&
           (text + " : ").find(fieldSeparator) == text.size();
}

}  // namespace

bool readForm(std::string_view field, bool& value) {
    if (field == "True" || field == "False") {
        value = field == "True";
        return true;
    }
    const std::string_view word = trimmed(field);
    double number = 0;
    if (const std::string lower = lowerCase(word); lower == "true" || lower == "false")
        value = lower == "true";
    else if (readSlowly(word, number))
        value = number != 0;
    else
        return false;
    return true;
}

bool readForm(std::string_view field, std::int32_t& value) {
    if (const auto whole = readAll<std::int32_t>(field)) {
        value = *whole;
        return true;
    }
    double number = 0;
    if (!readSlowly(field, number)) return false;
    number = std::nearbyint(number);
    using Limits = std::numeric_limits<std::int32_t>;
    if (number < Limits::min() || number > Limits::max()) return false;
    value = toInt(number);
    return true;
}

bool readForm(std::string_view field, float& value) {
    float real = readAll<float>(field).value_or(NAN);
    if (!std::isfinite(real)) {
        double number = 0;
        if (!readSlowly(field, number)) return false;
        if (std::fabs(number) > static_cast<double>(std::numeric_limits<float>::max())) return false;
        real = toReal(number);
    }
    value = real + 0.0F;  // "-0" is 0
    return true;
}

bool readForm(std::string_view field, std::string& value) {
    value = field;
    return true;
}

void appendForm(std::string& out, bool value) { out += booleanText(value); }

void appendForm(std::string& out, std::int32_t value) {
    char buffer[12];
    out.append(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
}

void appendForm(std::string& out, float value) {
    // A value that is not finite would make the file unreadable.
    appendReal(out, std::isfinite(value) ? value : toReal(static_cast<double>(value)));
}

void appendForm(std::string& out, const std::string& value) {
    if (fitsItsField(value)) {
        out += value;
        return;
    }
    std::string text = oneLine(value);
    // The separator behind the field counts too: with it, a text ending in " :" ends early.
    text += fieldSeparator;
    const std::size_t end = text.size() - fieldSeparator.size();
    for (std::size_t at = 0; (at = text.find(fieldSeparator, at)) < end; ++at) text[at + 1] = ';';
    out.append(text, 0, end);
}

// The front of a field as it can be shown to a person.
std::string excerpt(std::string_view field) {
    std::string text(field.substr(0, 40));
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 32 || c == 127; };
    std::replace_if(text.begin(), text.end(), isControl, '?');
    return field.size() > 40 ? text + "..." : text;
}

std::string oneLine(std::string text) {
    const auto isBreak = [](char c) { return c == '\r' || c == '\n'; };
    std::replace_if(text.begin(), text.end(), isBreak, ' ');
    return text;
}

}  // namespace zentrik
