#include "app/keeping/program_folder.h"

#include "files/write_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace zentrik {

namespace {

// All files or none: an interrupted copy is made anew at the next start.
bool fill(const QString& folder, const QString& name) {
    const QString target = folder + "/" + name, half = target + ".new";
    if (QFileInfo::exists(target)) return true;
    // Emptying a link would empty the folder it leads to.
    if (QFileInfo(half).isSymLink()) QFile::remove(half);
    QDir(half).removeRecursively();
    if (!QDir().mkpath(half)) return false;
    const QDir shipped(":/" + name);
    for (const QString& file : shipped.entryList(QDir::Files)) {
        QFile original(shipped.filePath(file));
        if (!original.open(QIODevice::ReadOnly)) return false;
        const QByteArray bytes = original.readAll();
        if (!writeFile((half + "/" + file).toStdString(), bytes.toStdString()).empty()) return false;
    }
    return QDir().rename(half, target) && syncFolder(folder.toStdString()).empty();
}

}  // namespace

bool fillProgramFolder(const QString& folder) {
    const bool projects = fill(folder, "zoo");
    return fill(folder, "sprites") && projects;
}

QString programFolder() {
    const QString beside = QCoreApplication::applicationDirPath();
    const QFileInfo zoo(beside + "/zoo");
    if (zoo.isDir() && zoo.isWritable()) return beside;
    const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (!fillProgramFolder(own))
        qWarning("The sample projects could not all be copied to %s", qPrintable(own));
    return own;
}

}  // namespace zentrik
