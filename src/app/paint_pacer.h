#pragma once
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

namespace zentrik {

// Repaints a widget at most once per screen refresh, however often it is asked to.
class PaintPacer : public QObject {
public:
    explicit PaintPacer(QWidget& widget);
    void request();

private:
    QWidget& widget_;
    QElapsedTimer last_;  // since the widget was last told to repaint
    QTimer next_;
    void repaint();
};

}  // namespace zentrik
