#include "app/window/drop_target.h"

#include <QDropEvent>
#include <QMimeData>

namespace zentrik {

DropTarget::DropTarget(QWidget& window) : QObject(&window) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool DropTarget::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto& drop = *static_cast<QDropEvent*>(event);
    drop.setDropAction(Qt::CopyAction);  // a file that is moved here would be gone there
    drop.accept();
    if (type == QEvent::Drop) dropped(drop.mimeData()->urls(), drop.position().toPoint());
    return true;
}

}  // namespace zentrik
