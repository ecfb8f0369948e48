#pragma once
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

namespace zentrik {

// Repaints a widget at most once per screen refresh, however often it is asked to. Where a paint takes long
// it leaves as much time between two of them, so that the model does not wait for its pictures; ten a second
// are painted as long as painting allows.
class PaintPacer : public QObject {
public:
    explicit PaintPacer(QWidget& widget);
    void request();

    // Runs what the widget does at its paint event, and takes note how long that is.
    template <class Paint>
    void measure(Paint paint) {
        QElapsedTimer taken;
        taken.start();
        paint();
        lastPaint_ = static_cast<int>(taken.elapsed());
    }

private:
    QWidget& widget_;
    QElapsedTimer last_;  // since the widget was last told to repaint
    QTimer next_;
    int lastPaint_ = 0;  // milliseconds

    int period() const;
    void repaint();
};

}  // namespace zentrik
