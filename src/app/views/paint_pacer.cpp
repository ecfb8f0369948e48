#include "app/views/paint_pacer.h"

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
    connect(&next_, &QTimer::timeout, this, &PaintPacer::request);  // there may be a paint since
}

qint64 PaintPacer::wait() const {
    if (!told_.isValid()) return 0;
    const qint64 refresh = refreshPeriod(widget_) - told_.elapsed();
    if (!painted_.isValid()) return refresh;
    constexpr qint64 longest = 100;  // milliseconds from paint to paint
    return std::max(refresh, std::min(lastPaint_, longest - lastPaint_) - painted_.elapsed());
}

void PaintPacer::request() {
    if (next_.isActive()) return;
    if (const qint64 rest = wait(); rest > 0) return next_.start(static_cast<int>(rest));
    told_.start();
    widget_.update();
}

}  // namespace zentrik
