#include "display/path.h"

#include "basics/units.h"
#include "display/canvas/canvas.h"

namespace zentrik {

void drawPath(QPainter& painter, const std::vector<PathDot>& dots, std::size_t from) {
    // A dot is one device-independent pixel, on the device's own pixels.
    const double ratio = painter.device()->devicePixelRatioF();
    const int side = std::max(1, static_cast<int>(std::lround(ratio)));
    const QSize area(painter.device()->width(), painter.device()->height());
    const QSizeF reach = QSizeF(area) * ratio;
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    for (std::size_t i = from; i < dots.size(); ++i) {
        const double x = std::floor(dots[i].x * ratio / twipsPerPixel + 0.5);
        const double y = std::floor(dots[i].y * ratio / twipsPerPixel + 0.5);
        if (x < 0 || y < 0 || x > reach.width() || y > reach.height()) continue;
        painter.fillRect(static_cast<int>(x), static_cast<int>(y), side, side, colourOf(dots[i].colour));
    }
    painter.restore();
}

}  // namespace zentrik
