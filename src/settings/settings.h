#pragma once
// What the program remembers from one run to the next, as one table of keys.

#include "settings/setting_rows.h"

#include <optional>
#include <string>

namespace zentrik {

// Text values by key.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual std::optional<std::string> read(const std::string& key) = 0;
    virtual void write(const std::string& key, const std::string& text) = 0;
};

// Reads every key, or takes its default where it is missing or does not hold its kind of value. The
// animation's timer period, the grid size and the node radius must be ones the program accepts.
void getSettings(Editor& ed, Placement& placement, SettingsStore& store);

// Stores every key in the table's order. Without a placement (a maximised or minimised window) the four
// window keys stay as they were.
void saveSettings(const Editor& ed, const std::optional<Placement>& placement, SettingsStore& store);

}  // namespace zentrik
