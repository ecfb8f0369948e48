#pragma once
// Pages in a browser without a window.

#include "temporary_folder.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>

namespace zentrik {

// Runs a browser without a window; gives what it printed.
inline QString browse(const TemporaryFolder& folder, const QStringList& what) {
    const QStringList options{
        "--headless",
        "--no-sandbox",
        "--disable-gpu",
        "--disable-quic",
        "--no-first-run",
        "--disable-background-networking",
        "--disable-component-update",
        "--disable-sync",
        "--hide-scrollbars",
        "--user-data-dir=" + QString::fromStdString((folder.path / "browser").string())};
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start("chromium", options + what);
    EXPECT_TRUE(process.waitForFinished(120000));
    return QString::fromUtf8(process.readAllStandardOutput());
}

// A page's first rows, as wide as the browser's window, once its scripts have nothing left to do: the
// browser's own time runs as fast as they do, so that a busy machine takes no picture too early.
inline QImage shownBy(const std::string& page, const TemporaryFolder& folder, QSize size,
                      const QStringList& options = {}) {
    const QString shot = QString::fromStdString((folder.path / "shot.png").string());
    browse(folder,
           options + QStringList{"--virtual-time-budget=3000",
                                 QString("--window-size=%1,%2").arg(size.width()).arg(size.height() + 200),
                                 "--screenshot=" + shot, QString::fromStdString("file://" + page)});
    return QImage(shot).copy(QRect(QPoint(), size));
}

}  // namespace zentrik
