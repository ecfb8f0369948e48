#include "app/settings_store.h"

#include <QStringList>

namespace zentrik {

namespace {

QString place(const std::string& key) { return "Settings/" + QString::fromStdString(key); }

}  // namespace

UserSettings::UserSettings() : settings_("Zentrik", "Zentrik") {}

std::optional<std::string> UserSettings::read(const std::string& key) {
    if (!settings_.contains(place(key))) return std::nullopt;
    // A text with commas in a file written by hand arrives as a list.
    return settings_.value(place(key)).toStringList().join(",").toStdString();
}

void UserSettings::write(const std::string& key, const std::string& text) {
    settings_.setValue(place(key), QString::fromStdString(text));
}

std::string UserSettings::problem() {
    settings_.sync();
    const std::string file = settings_.fileName().toStdString();
    switch (settings_.status()) {
        case QSettings::AccessError:
            return "The settings in " + file + " cannot be read or written.";
        case QSettings::FormatError:
            return "The settings in " + file + " are damaged.";
        case QSettings::NoError:
            break;
    }
    return {};
}

}  // namespace zentrik
