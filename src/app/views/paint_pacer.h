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
        lastPaint_ = taken.elapsed();
        painted_.start();
    }

private:
    QWidget& widget_;
    QElapsedTimer told_, painted_;  // since the widget was last told to repaint, and since it had done so
    qint64 lastPaint_ = 0;          // milliseconds
    QTimer next_;

    qint64 wait() const;
};

}  // namespace zentrik
