#pragma once
#include "app/views/paint_pacer.h"
#include "model/editor.h"

#include <QPixmap>
#include <QWidget>
#include <functional>

namespace zentrik {

// frmPath: shows the dots of the selected node's path, above the main window. A click erases them.
class PathWindow : public QWidget {
public:
    PathWindow(const Editor& ed, QWidget* parent);

    std::function<void()> clicked, closed;
    PaintPacer pacer;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    const Editor& ed_;
    QPixmap picture_;          // the dots painted so far
    std::size_t painted_ = 0;  // how many they are
    std::int32_t erased_ = 0;
};

}  // namespace zentrik
