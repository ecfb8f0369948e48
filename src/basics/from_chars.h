#pragma once
// std::from_chars for reals, and the same for a C++ library that has it for whole numbers alone, as one for
// browsers does. This is the one place that knows.

#include <charconv>

#if !defined(_LIBCPP_VERSION) || _LIBCPP_VERSION >= 200000
namespace zentrik {
using std::from_chars;
}
#else

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>
#include <type_traits>

namespace zentrik {

using std::from_chars;

// The number's end: a minus sign, digits with a point among them, an exponent with digits.
inline std::size_t realEnd(std::string_view text) {
    std::size_t at = text.starts_with('-') ? 1 : 0;
    const auto skipDigits = [&] {
        const std::size_t from = at;
        while (at < text.size() && text[at] >= '0' && text[at] <= '9') ++at;
        return at - from;
    };
    std::size_t digits = skipDigits();
    if (at < text.size() && text[at] == '.') ++at, digits += skipDigits();
    if (digits == 0) return 0;
    const std::size_t mantissa = at;
    if (at == text.size() || (text[at] != 'e' && text[at] != 'E')) return mantissa;
    if (++at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
    return skipDigits() > 0 ? at : mantissa;
}

// A number of few digits is a quotient of two doubles that are exact, so that one division rounds it right:
// the clock's text is read so at every step.
inline bool readBriefly(std::string_view text, double& value) {
    constexpr double tens[] = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                               1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const bool negative = text.starts_with('-');
    if (negative) text.remove_prefix(1);
    if (text.size() >= std::size(tens) || text.find_first_of("eE") < text.size()) return false;
    double digits = 0;
    const std::size_t point = std::min(text.find('.'), text.size() - 1);
    for (const char c : text)
        if (c != '.') digits = 10 * digits + (c - '0');
    value = (negative ? -digits : digits) / tens[text.size() - 1 - point];
    return true;
}

template <class Real>
requires std::is_floating_point_v<Real> std::from_chars_result from_chars(const char* first, const char* last,
                                                                          Real& value) {
    const std::string_view text(first, static_cast<std::size_t>(last - first));
    const std::string number(text.substr(0, realEnd(text)));
    if (number.empty()) return {first, std::errc::invalid_argument};
    const char* end = first + number.size();
    Real read = 0;
    if constexpr (std::is_same_v<Real, float>)
        read = std::strtof(number.c_str(), nullptr);
    else if (readBriefly(number, value))
        return {end, std::errc()};
    else
        read = std::strtod(number.c_str(), nullptr);
    const bool vanished = read == 0 && number.find_first_of("123456789") < number.find_first_of("eE");
    if (vanished || std::isinf(read)) return {end, std::errc::result_out_of_range};
    value = read;
    return {end, std::errc()};
}

}  // namespace zentrik
#endif
