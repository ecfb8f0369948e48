#pragma once
#include <QObject>
#include <QPoint>
#include <QUrl>
#include <QWidget>
#include <functional>

namespace zentrik {

// Takes whatever is dropped on a window. What it is, and whether it is of any use, the window says.
class DropTarget : public QObject {
public:
    explicit DropTarget(QWidget& window);

    // Places of files or pages, none for what has none; at: in the window, pixels.
    std::function<void(const QList<QUrl>& urls, QPoint at)> dropped;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace zentrik
