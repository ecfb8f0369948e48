#pragma once
// The text of the settings file: sections of lines KEY=VALUE, of which the program reads and writes the
// section "Settings". Lines of other sections, and keys the program does not know, stay as they are.

#include "settings/settings.h"

#include <string>
#include <string_view>
#include <vector>

namespace zentrik {

class SettingsText : public SettingsStore {
public:
    SettingsText() = default;
    // Takes any bytes whatever; what is no line of such a file is left out.
    explicit SettingsText(std::string_view bytes);

    bool isDamaged() const { return damaged_; }  // something had to be left out
    std::vector<std::string> keys() const;
    std::string bytes() const;

    std::optional<std::string> read(const std::string& key) override;
    void write(const std::string& key, const std::string& text) override;

private:
    struct Line {
        std::string text;     // as it stands
        std::string section;  // in which
        std::string key;      // empty for comments and section names
    };
    std::vector<Line> lines_;
    bool damaged_ = false;

    void add(std::string_view line, std::string& section);
    std::vector<Line>::iterator find(const std::string& key);
};

// A value as it stands behind "=", and back. Quotes, backslashes and line breaks are escaped; a list of
// values, separated by commas outside quotes, becomes one text with commas.
std::string settingValue(const std::string& text);
std::string settingFromValue(std::string_view value);

}  // namespace zentrik
