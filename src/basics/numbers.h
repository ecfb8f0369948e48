#pragma once
// Numbers and their text. One rule for rounding everywhere: named quantities are 32-bit variables;
// the expressions between them are evaluated in double precision and rounded when stored. Products
// of integers are formed in double precision too: exact wherever 32 bits would do, never undefined.

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace zentrik {

// Nearest integer of a number within 32 bits, halves to the even neighbour: beside 2^52 a double has no bits
// left below 1, and its last ones are the integer.
inline std::int32_t nearestInt(double value) {
    return static_cast<std::int32_t>(std::bit_cast<std::int64_t>(value + 0x1.8p52));
}

// Nearest integer, halves to the even neighbour, saturating at the 32-bit ends; not-a-number gives 0.
inline std::int32_t toInt(double value) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (value > Limits::min() && value < Limits::max()) return nearestInt(value);
    if (std::isnan(value)) return 0;
    return value < 0 ? Limits::min() : Limits::max();
}

// Nearest 32-bit real, saturating at the largest finite one; not-a-number gives 0.
float toReal(double value);

// Whether a number stands at the front of a text.
bool hasLeadingNumber(std::string_view text);
// The number at the front of a text ("." as decimal point, blanks before it allowed, exponent
// allowed); 0 where there is none. Always finite: "inf" and "nan" are no numbers.
double leadingNumber(std::string_view text);

// Shortest general decimal form: at most 7 significant digits, "1E+07" for large magnitudes.
std::string realText(float value);
// The same with up to 15 digits, for numbers that never were 32-bit reals.
std::string realText(double value);
// Appends realText(value) without a temporary; for the file writer.
void appendReal(std::string& out, float value);

// Exactly `decimals` digits after the point. Halves go away from zero, as a person expects of the
// decimals a 32-bit real shows: 0.35 gives "0.4" although its nearest 32-bit real lies just below.
std::string fixedText(double value, int decimals);

// The clock read-out: a blank, then three decimals.
std::string clockText(float time);

inline const char* booleanText(bool value) { return value ? "True" : "False"; }

}  // namespace zentrik
