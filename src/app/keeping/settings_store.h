#pragma once
#include "settings/settings_text.h"

namespace zentrik {

// The user's settings file: application "Zentrik", section "Settings".
class UserSettings {
public:
    UserSettings();

    // Reads every setting, or takes its default. What is wrong with the file in words, or the empty text.
    std::string load(Editor& ed, Placement& placement);
    // Stores every setting, except that what another program stored since the last load or store stays
    // where this one changed nothing. What went wrong in words, or the empty text; the former settings
    // are then as they were. Damaged ones are kept beside, in a file that ends in ".damaged".
    std::string store(const Editor& ed, const std::optional<Placement>& placement);

private:
    std::string file_;
    SettingsText read_;   // as they stood in the file
    SettingsText known_;  // what this program made of them

    std::string merge(SettingsText ours);
};

}  // namespace zentrik
