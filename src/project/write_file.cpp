#include "project/write_file.h"

#include <QByteArray>
#include <QSaveFile>
#include <QString>

#ifdef Q_OS_UNIX
#include <unistd.h>

#include <cerrno>
#include <cstring>
#endif

namespace zentrik {

namespace {

// Space is often given out only when data goes to the disk, so a full disk may show up no earlier.
std::string syncProblem([[maybe_unused]] int handle) {
#ifdef Q_OS_UNIX
    if (::fsync(handle) != 0 && errno != EINVAL && errno != ENOTSUP) return std::strerror(errno);
#endif
    return {};
}

// QSaveFile::commit() alone replaces a good file by a cut-off one when the disk is full, and reports
// success. Each earlier sign of failure is therefore looked at.
std::string writeAside(QSaveFile& file, std::string_view bytes) {
    const auto size = static_cast<qint64>(bytes.size());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return file.errorString().toStdString();
    const qint64 written = file.write(bytes.data(), size);
    if (written != size || !file.flush() || file.error() != QFileDevice::NoError)
        return file.error() != QFileDevice::NoError ? file.errorString().toStdString() : "It was cut off.";
    if (std::string problem = syncProblem(file.handle()); !problem.empty()) return problem;
    return file.size() == size ? "" : "It was cut off.";
}

}  // namespace

std::string writeFile(const std::string& path, std::string_view bytes) {
    const QString name = QString::fromStdString(path);
    if (name.toStdString() != path) return "The file name is no valid text.";
    QSaveFile file(name);
    std::string problem = writeAside(file, bytes);
    if (!problem.empty()) {
        file.cancelWriting();
        return problem;
    }
    return file.commit() ? "" : file.errorString().toStdString();
}

}  // namespace zentrik
