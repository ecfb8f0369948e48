#pragma once
#include <QString>

class QWidget;

namespace zentrik {

class DesktopHost;

struct FileKind {
    QString name;    // "GIF animation"
    QString suffix;  // without the point; empty for none
};

// Asks by the desktop's own dialog where to save, and again before something is replaced. The name has the
// kind's suffix. Empty when the person thought better of it.
QString askFileName(DesktopHost& host, QWidget& window, const FileKind& kind, const QString& proposed);

}  // namespace zentrik
