#include "settings/settings_text.h"

#include "basics/text.h"

#include <algorithm>
#include <iterator>

namespace zentrik {

namespace {

constexpr std::string_view ourSection = "Settings";

std::string_view withoutBlanks(std::string_view text) { return trimmed(text, " \t\r"); }

}  // namespace

SettingsText::SettingsText(std::string_view bytes) {
    std::string section;
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find('\n'), bytes.size());
        add(bytes.substr(0, end), section);
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
    }
}

void SettingsText::add(std::string_view line, std::string& section) {
    line = withoutBlanks(line);
    const std::size_t equals = line.find('=');
    const bool isComment = line.empty() || line.front() == ';';
    const bool isSection = !isComment && line.front() == '[' && line.back() == ']';
    const bool isSetting = !isComment && !isSection && equals != std::string_view::npos && equals > 0;
    if ((!isComment && !isSection && !isSetting) || line.find('\0') != std::string_view::npos) {
        damaged_ = true;
        return;
    }
    if (isSection) section = withoutBlanks(line.substr(1, line.size() - 2));
    lines_.push_back(
        {std::string(line), section, isSetting ? std::string(withoutBlanks(line.substr(0, equals))) : ""});
}

// The last line of a key counts.
std::vector<SettingsText::Line>::iterator SettingsText::find(const std::string& key) {
    const auto found = std::find_if(lines_.rbegin(), lines_.rend(), [&](const Line& line) {
        return line.section == ourSection && line.key == key;
    });
    return found == lines_.rend() ? lines_.end() : std::prev(found.base());
}

std::vector<std::string> SettingsText::keys() const {
    std::vector<std::string> keys;
    for (const Line& line : lines_)
        if (line.section == ourSection && !line.key.empty()) keys.push_back(line.key);
    return keys;
}

std::string SettingsText::bytes() const {
    std::string bytes;
    for (const Line& line : lines_) bytes += line.text + "\n";
    return bytes;
}

std::optional<std::string> SettingsText::read(const std::string& key) {
    const auto line = find(key);
    if (line == lines_.end()) return {};
    return settingFromValue(std::string_view(line->text).substr(line->text.find('=') + 1));
}

void SettingsText::write(const std::string& key, const std::string& text) {
    const std::string line = key + "=" + settingValue(text);
    if (const auto present = find(key); present != lines_.end()) {
        present->text = line;
        return;
    }
    const auto last = std::find_if(lines_.rbegin(), lines_.rend(),
                                   [](const Line& l) { return l.section == ourSection && !l.text.empty(); });
    const std::string section(ourSection);
    auto place = last.base();
    if (last == lines_.rend()) {
        lines_.push_back({"[" + section + "]", section, ""});
        place = lines_.end();
    }
    lines_.insert(place, {line, section, key});
}

}  // namespace zentrik
