#include "app/program_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace zentrik {

namespace {

void fill(const QString& folder, const QString& name) {
    if (QFileInfo::exists(folder + "/" + name) || !QDir().mkpath(folder + "/" + name)) return;
    const QDir shipped(":/" + name);
    for (const QString& file : shipped.entryList(QDir::Files)) {
        const QString target = folder + "/" + name + "/" + file;
        QFile::copy(shipped.filePath(file), target);
        QFile::setPermissions(target,
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    }
}

}  // namespace

void fillProgramFolder(const QString& folder) {
    fill(folder, "zoo");
    fill(folder, "sprites");
}

QString programFolder() {
    const QString beside = QCoreApplication::applicationDirPath();
    const QFileInfo zoo(beside + "/zoo");
    if (zoo.isDir() && zoo.isWritable()) return beside;
    const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    fillProgramFolder(own);
    return own;
}

}  // namespace zentrik
