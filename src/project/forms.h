#pragma once
// The four forms a field of a project file takes: True or False, whole number, real, text.

#include <cstdint>
#include <string>
#include <string_view>

namespace zentrik {

// Each gives false, and leaves the value alone, when the field does not hold its form. Blanks around
// a number or truth value are passed over. A truth value may be a number, 0 being false; a whole
// number may have decimals, which are rounded halves to even; "inf", "nan" and what 32 bits cannot hold
// are no numbers.
bool readForm(std::string_view field, bool& value);
bool readForm(std::string_view field, std::int32_t& value);
bool readForm(std::string_view field, float& value);
bool readForm(std::string_view field, std::string& value);

void appendForm(std::string& out, bool value);
void appendForm(std::string& out, std::int32_t value);
void appendForm(std::string& out, float value);
// A separator or line break inside a text would shift every field behind it, so its colon becomes a
// semicolon and a break becomes a blank.
void appendForm(std::string& out, const std::string& value);

// The front of a field as it can be shown to a person.
std::string excerpt(std::string_view field);

// The text on one line: every line break becomes a blank.
std::string oneLine(std::string text);

}  // namespace zentrik
