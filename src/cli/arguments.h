#pragma once
// A command line, read by tables of options in the usual GNU form.

#include <array>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zentrik::cli {

struct OptionRow {
    const char* letter;  // of the short form, or null
    const char* name;    // of the long form
    const char* value;   // what stands for its value in the help; null for an option without one
    const char* text;    // what it does
};
using OptionGroups = std::array<std::span<const OptionRow>, 4>;

inline constexpr OptionRow commonOptions[] = {{"h", "help", nullptr, "Say how the command is used, and end."},
                                              {"v", "version", nullptr, "Say the version, and end."}};

struct Arguments {
    std::vector<std::string> operands;
    std::map<std::string, std::vector<std::string>, std::less<>> values;  // by long name, in their order
    std::string problem;                                                  // in words; empty when well formed

    bool has(std::string_view name) const { return values.contains(name); }
    // The last one given.
    std::optional<std::string> value(std::string_view name) const;
    std::vector<std::string> all(std::string_view name) const;
    // A whole number from `least` on; throws a Failure for any other.
    std::optional<std::int64_t> number(std::string_view name, std::int64_t least) const;
    // "on" or "off"; throws a Failure for any other.
    std::optional<bool> onOrOff(std::string_view name) const;
};

Arguments readArguments(const std::vector<std::string>& words, const OptionGroups& groups);

}  // namespace zentrik::cli
