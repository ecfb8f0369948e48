#pragma once
#include "ui/settings.h"

#include <QSettings>

namespace zentrik {

// The user's settings store: application "Zentrik", section "Settings".
class UserSettings : public SettingsStore {
public:
    UserSettings();
    std::optional<std::string> read(const std::string& key) override;
    void write(const std::string& key, const std::string& text) override;

    // Brings what was written to disk. What is wrong with the store in words, or the empty text.
    std::string problem();

private:
    QSettings settings_;
};

}  // namespace zentrik
