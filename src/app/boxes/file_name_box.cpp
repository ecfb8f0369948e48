#include "app/boxes/file_name_box.h"

#include "app/boxes/desktop_host.h"

#include <QFileDialog>
#include <QFileInfo>

namespace zentrik {

QString askFileName(DesktopHost& host, QWidget& window, const FileKind& kind, const QString& proposed) {
    const QString ending = kind.suffix.isEmpty() ? "" : "." + kind.suffix;
    QFileDialog box(&window, "Save " + kind.name, QFileInfo(proposed).path());
    box.setObjectName("FileNameBox");
    box.setAcceptMode(QFileDialog::AcceptSave);
    box.setFileMode(QFileDialog::AnyFile);
    if (!ending.isEmpty()) box.setNameFilter(kind.name + " (*" + ending + ")");
    // It does not know the name that the suffix will have made of what was typed.
    box.setOption(QFileDialog::DontConfirmOverwrite);
    box.selectFile(QFileInfo(proposed).fileName() + ending);
    while (host.show(box) == QDialog::Accepted && !box.selectedFiles().isEmpty()) {
        QString file = box.selectedFiles().first();
        if (!file.endsWith(ending, Qt::CaseInsensitive)) file += ending;
        const QFileInfo info(file);
        if (ending.isEmpty()) return file;  // a folder, which nothing replaces
        const QString question = info.fileName() + " exists already. Replace it?";
        if (!info.exists() || host.confirm(question.toStdString(), "Zentrik")) return file;
    }
    return {};
}

}  // namespace zentrik
