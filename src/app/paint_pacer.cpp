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

void PaintPacer::request() {
    if (next_.isActive()) return;
    const int period = refreshPeriod(widget_);
    const qint64 waited = last_.isValid() ? last_.elapsed() : period;
    if (waited >= period)
        repaint();
    else
        next_.start(static_cast<int>(period - waited));
}

void PaintPacer::repaint() {
    last_.start();
    widget_.update();
}

}  // namespace zentrik
