#include "display/canvas/stamp.h"

#include <algorithm>

namespace zentrik {

namespace {

constexpr double largestStamp = 64;      // reach in device pixels beyond which a shape is drawn directly
constexpr double largestRadius = 16000;  // device pixels; keeps the rasteriser inside its range

}  // namespace

void drawShape(QPainter& painter, Shape shape, QPointF centre, double radius, int outlineWidth, QColor fill,
               QColor outline) {
    if (shape == Shape::circle) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(outline, outlineWidth));
        painter.setBrush(fill);
        painter.drawEllipse(centre, radius, radius);
        painter.setRenderHint(QPainter::Antialiasing, false);
        return;
    }
    if (keepsShapes(painter)) {
        painter.setPen(QPen(outline, outlineWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.setBrush(fill);
        return painter.drawRect(QRectF(centre - QPointF(radius, radius), 2 * QSizeF(radius, radius)));
    }
    // Whole pixels, so that all four edges are sharp.
    const int side = 2 * static_cast<int>(std::lround(radius)) + outlineWidth;
    const QRect outer(static_cast<int>(std::lround(centre.x() - side / 2.0)),
                      static_cast<int>(std::lround(centre.y() - side / 2.0)), side, side);
    painter.fillRect(outer, outline);
    painter.fillRect(outer.adjusted(outlineWidth, outlineWidth, -outlineWidth, -outlineWidth), fill);
}

Stamp::Stamp(const Canvas& canvas, Shape shape, double radius)
    : canvas_(canvas),
      shape_(shape),
      radius_(std::clamp(canvas.pixels(radius), 0.0, largestRadius)),
      reach_(static_cast<int>(std::ceil(radius_ + canvas.thinWidth / 2.0 + 0.5))) {}

void Stamp::paint(double x, double y, std::int32_t fill, std::int32_t outline) {
    const Pixel middle = canvas_.pixel(x, y);
    if (middle.x < -reach_ || middle.y < -reach_ || middle.x > canvas_.frame.width() + reach_ ||
        middle.y > canvas_.frame.height() + reach_)
        return;
    if (canvas_.shapes || reach_ > largestStamp) {
        drawShape(canvas_.painter, shape_, canvas_.place(x, y), radius_, canvas_.thinWidth, colourOf(fill),
                  colourOf(outline));
        return;
    }
    if (weights_.isNull()) makeWeights();
    const QPoint corner =
        QPoint(static_cast<int>(middle.x), static_cast<int>(middle.y)) - QPoint(reach_, reach_);
    const Coloured& coloured = picture(fill, outline);
    if (canvas_.bitmap)
        canvas_.bitmap->picture({corner, weights_.size()}, coloured.tiles);
    else
        canvas_.painter.drawImage(corner, coloured.image);
}

void Stamp::makeWeights() {
    const int side = 2 * reach_ + canvas_.thinWidth % 2;
    weights_ = QImage(side, side, QImage::Format_ARGB32_Premultiplied);
    weights_.fill(Qt::transparent);
    QPainter painter(&weights_);
    drawShape(painter, shape_, QPointF(side / 2.0, side / 2.0), radius_, canvas_.thinWidth, QColor(255, 0, 0),
              QColor(0, 255, 0));
    // Both together are the coverage, whatever rounding made of them.
    auto* weights = reinterpret_cast<QRgb*>(weights_.bits());
    std::transform(weights, weights + side * side, weights,
                   [](QRgb w) { return qRgba(qRed(w), qAlpha(w) - qRed(w), 0, qAlpha(w)); });
}

// A colour has a few places where its picture may be kept; when others have them all, the first one yields.
const Stamp::Coloured& Stamp::picture(std::int32_t fill, std::int32_t outline) {
    constexpr std::size_t places = 4;
    const std::uint32_t mixed =
        (static_cast<std::uint32_t>(fill) ^ static_cast<std::uint32_t>(outline) << 4) * 0x9E3779B1U;
    const std::size_t first = mixed >> 26;
    static_assert(std::tuple_size_v<decltype(kept_)> == 1 << (32 - 26));
    for (std::size_t n = 0; n < places; ++n) {
        Coloured& kept = kept_[(first + n) % kept_.size()];
        const bool fresh = kept.image.isNull();
        if (!fresh && (kept.fill != fill || kept.outline != outline)) continue;
        if (fresh) colour(kept = {fill, outline, QImage(weights_.size(), weights_.format()), {}});
        return kept;
    }
    Coloured& kept = kept_[first];
    kept.fill = fill;
    kept.outline = outline;
    colour(kept);
    return kept;
}

void Stamp::colour(Coloured& coloured) const {
    const std::uint64_t in = apart(colourOf(coloured.fill).rgb()),
                        rim = apart(colourOf(coloured.outline).rgb());
    const auto* from = reinterpret_cast<const QRgb*>(weights_.constBits());
    auto* to = reinterpret_cast<QRgb*>(coloured.image.bits());
    std::transform(from, from + weights_.width() * weights_.height(), to, [&](QRgb weight) {
        // Four sums of up to 255 * 255 beside each other, and each divided by 255, halves upwards.
        constexpr std::uint64_t half = 0x0080008000800080;
        const auto fillPart = static_cast<unsigned>(qRed(weight)),
                   rimPart = static_cast<unsigned>(qGreen(weight));
        const std::uint64_t sums = in * fillPart + rim * rimPart + half;
        return together((sums + (sums >> 8 & 0x00FF00FF00FF00FF)) >> 8);
    });
    if (coloured.tiles.empty())
        coloured.tiles = tilesOf(coloured.image);
    else
        recolour(coloured.tiles, coloured.image);
}

}  // namespace zentrik
