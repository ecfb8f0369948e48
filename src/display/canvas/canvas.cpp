#include "display/canvas/canvas.h"

#include "basics/numbers.h"
#include "basics/units.h"

#include <QPaintEngine>
#include <algorithm>

namespace zentrik {

namespace {

QRect frameOf(std::int32_t width, std::int32_t height, double ratio) {
    const auto extent = [&](double twips) {
        return std::clamp(toInt(std::ceil(twips / twipsPerPixel * ratio)), 0, 1 << 16);
    };
    return {0, 0, extent(width), extent(height)};
}

}  // namespace

QColor colourOf(std::int32_t colour) {
    const auto bits = static_cast<std::uint32_t>(colour);
    const auto part = [&](int shift) { return static_cast<int>((bits >> shift) & 0xFF); };
    return QColor(part(0), part(8), part(16));
}

bool keepsShapes(const QPainter& painter) { return painter.paintEngine()->type() != QPaintEngine::Raster; }

Canvas::Canvas(QPainter& target, std::int32_t width, std::int32_t height)
    : painter(target),
      ratio(target.device()->devicePixelRatioF()),
      frame(frameOf(width, height, ratio)),
      thinWidth(std::max(1, static_cast<int>(std::lround(ratio)))),
      shapes(keepsShapes(target)),
      unit(ratio / twipsPerPixel) {
    painter.save();
    const double unscaled = std::min(1.0, 1 / ratio);  // a painter scales up by itself, but not down
    painter.scale(unscaled, unscaled);
    painter.setClipRect(frame, Qt::IntersectClip);
    bitmap = Bitmap::under(painter);
}

}  // namespace zentrik
