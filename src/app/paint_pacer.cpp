#include "app/paint_pacer.h"

#include <QScreen>
#include <algorithm>
#include <cmath>

namespace zentrik {

namespace {

int refreshPeriod(const QWidget& widget) {
    const QScreen* screen = widget.screen();
    const double rate = screen != nullptr ? screen->refreshRate() : 60;
    return static_cast<int>(std::ceil(1000 / std::clamp(rate, 30.0, 240.0)));
}

}  // namespace

PaintPacer::PaintPacer(QWidget& widget) : widget_(widget) {
    next_.setSingleShot(true);
    next_.setTimerType(Qt::PreciseTimer);
    connect(&next_, &QTimer::timeout, this, &PaintPacer::repaint);
}

int PaintPacer::period() const {
    constexpr int longest = 100;  // milliseconds
    return std::max(refreshPeriod(widget_), std::min(2 * lastPaint_, longest));
}

void PaintPacer::request() {
    if (next_.isActive()) return;
    const qint64 wait = last_.isValid() ? period() - last_.elapsed() : 0;
    if (wait <= 0)
        repaint();
    else
        next_.start(static_cast<int>(wait));
}

void PaintPacer::repaint() {
    last_.start();
    widget_.update();
}

}  // namespace zentrik
