#include "app/keeping/settings_store.h"

#include "files/path.h"
#include "files/read_file.h"
#include "files/write_file.h"

#include <QLockFile>
#include <QStandardPaths>
#include <filesystem>

namespace zentrik {

namespace fs = std::filesystem;

namespace {

constexpr int patience = 500;  // milliseconds to wait for another program that stores its settings

// No file is no problem.
FileBytes readSettings(const std::string& file) { return isThere(file) ? readFile(file) : FileBytes{}; }

std::string folderOf(const std::string& file) { return fs::path(file).parent_path().string(); }

std::string takeLock(QLockFile& lock) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(lock.fileName().toStdString(), error);
    const bool strange = fs::exists(status) && !fs::is_regular_file(status);
    if (strange) return "Its lock is no ordinary file.";
    if (lock.tryLock(patience)) return {};
    return lock.error() == QLockFile::LockFailedError ? "Another program is storing its settings."
                                                      : "Its folder cannot be written to.";
}

}  // namespace

UserSettings::UserSettings()
    : file_(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toStdString() +
            "/Zentrik/Zentrik.conf") {}

std::string UserSettings::load(Editor& ed, Placement& placement) {
    sweepLeftovers(folderOf(file_));
    const FileBytes file = readSettings(file_);
    read_ = SettingsText(file.bytes);
    getSettings(ed, placement, read_);
    saveSettings(ed, placement, known_);
    if (!file.problem.empty()) return "The settings in " + file_ + " cannot be read.\n" + file.problem;
    return read_.isDamaged() ? "The settings in " + file_ + " are damaged." : "";
}

std::string UserSettings::store(const Editor& ed, const std::optional<Placement>& placement) {
    SettingsText ours;
    saveSettings(ed, placement, ours);
    const std::string problem = merge(std::move(ours));
    return problem.empty() ? "" : "The settings in " + file_ + " cannot be written.\n" + problem;
}

std::string UserSettings::merge(SettingsText ours) {
    std::error_code error;
    fs::create_directories(folderOf(file_), error);  // one that is missing for good fails the lock
    QLockFile lock(QString::fromStdString(file_ + ".lock"));
    if (std::string problem = takeLock(lock); !problem.empty()) return problem;
    const FileBytes file = readSettings(file_);
    if (!file.problem.empty()) return file.problem;
    SettingsText merged(file.bytes);
    if (merged.isDamaged())
        if (std::string problem = writeFile(file_ + ".damaged", file.bytes); !problem.empty()) return problem;
    for (const std::string& key : ours.keys()) {
        const bool changedHere = ours.read(key) != known_.read(key);
        const bool changedElsewhere = merged.read(key) && merged.read(key) != read_.read(key);
        if (changedHere || !changedElsewhere) merged.write(key, *ours.read(key));
    }
    if (std::string problem = writeFile(file_, merged.bytes()); !problem.empty()) return problem;
    read_ = std::move(merged);
    for (const std::string& key : ours.keys()) known_.write(key, *ours.read(key));
    return {};
}

}  // namespace zentrik
