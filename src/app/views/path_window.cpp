#include "app/views/path_window.h"

#include "display/path.h"

#include <QCloseEvent>
#include <QPainter>

namespace zentrik {

PathWindow::PathWindow(const Editor& ed, QWidget* parent) : QWidget(parent, Qt::Tool), pacer(*this), ed_(ed) {
    setObjectName("frmPath");
    setWindowTitle("Path of Selected Node");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_ShowWithoutActivating);  // the keys stay with the main window
}

void PathWindow::paintEvent(QPaintEvent*) {
    const double ratio = devicePixelRatioF();
    const QSize size = this->size() * ratio;
    const bool afresh =
        picture_.size() != size || erased_ != ed_.pathErased || painted_ > ed_.pathDots.size();
    if (afresh) {
        picture_ = QPixmap(size);
        picture_.setDevicePixelRatio(ratio);
        picture_.fill(Qt::white);
        painted_ = 0;
        erased_ = ed_.pathErased;
    }
    QPainter dots(&picture_);
    drawPath(dots, ed_.pathDots, painted_);
    dots.end();
    painted_ = ed_.pathDots.size();
    QPainter(this).drawPixmap(0, 0, picture_);
}

void PathWindow::mousePressEvent(QMouseEvent*) { clicked(); }

void PathWindow::closeEvent(QCloseEvent* event) {
    closed();
    event->accept();
}

}  // namespace zentrik
