#include "app/keeping/left_copies.h"

#include "files/path.h"
#include "library/backups.h"
#include "library/zoo.h"

#include <QFileInfo>
#include <QLocale>
#include <algorithm>

namespace zentrik {

namespace fs = std::filesystem;

namespace {

// A lock that names no process was cut off by the end of its program.
constexpr qint64 writingALock = 10;  // seconds at most

std::unique_ptr<QLockFile> lockOf(const fs::path& copy) {
    const QString path = QString::fromStdString(pathText(fs::path(copy).replace_extension(".lock")));
    auto lock = std::make_unique<QLockFile>(path);
    lock->setStaleLockTime(0);
    if (lock->tryLock(0)) return lock;
    qint64 process = 0;
    QString host, program;
    const bool named = lock->getLockInfo(&process, &host, &program);
    const QDateTime since = QFileInfo(path).lastModified();
    if (named || since.secsTo(QDateTime::currentDateTime()) < writingALock) return nullptr;
    return lock->removeStaleLockFile() && lock->tryLock(0) ? std::move(lock) : nullptr;
}

template <class Record>
std::string count(const std::vector<Record>& records, const char* one) {
    const auto used =
        std::count_if(records.begin(), records.end(), [](const Record& record) { return record.Used; });
    return std::to_string(used) + " " + one + (used == 1 ? "" : "s");
}

}  // namespace

std::vector<LeftCopy> leftCopies(const std::string& programFolder) {
    std::vector<LeftCopy> found;
    std::error_code error;
    fs::directory_iterator entry(recoveryFolder(programFolder), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code unknown;
        const fs::path& path = entry->path();
        if (entry->symlink_status(unknown).type() != fs::file_type::regular || path.extension() != copySuffix)
            continue;
        auto lock = lockOf(path);
        if (!lock) continue;
        auto copy = readRecoveryCopy(path);
        const QDateTime written = QFileInfo(QString::fromStdString(pathText(path))).lastModified();
        if (copy) found.push_back({path, std::move(lock), *std::move(copy), written});
    }
    std::sort(found.begin(), found.end(),
              [](const LeftCopy& a, const LeftCopy& b) { return a.written > b.written; });
    return found;
}

std::string describe(const LeftCopy& left) {
    const Project& project = left.copy.project;
    const QString when = QLocale().toString(left.written, QLocale::ShortFormat);
    return "Zentrik ended before \"" + left.copy.name + "\" was saved.\n\nWhat it held on " +
           when.toStdString() + ": " + count(project.Nodes, "node") + ", " + count(project.Links, "link") +
           (project.title.empty() ? "." : ".\nTitle: " + project.title.substr(0, 100)) +
           "\n\nWhat is discarded stays among the project's earlier versions.";
}

void putAway(const std::string& programFolder, const LeftCopy& left) {
    const FileBytes file = readProjectFile(left.path);
    std::error_code error;
    if (file.problem.empty() && keepVersion(programFolder, left.copy.name, file.bytes).empty())
        fs::remove(left.path, error);
}

}  // namespace zentrik
