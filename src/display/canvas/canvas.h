#pragma once
// A drawing area given in twips and painted in the device's own pixels, so that every mark is crisp at
// any device pixel ratio.

#include "basics/colours.h"
#include "display/canvas/bitmap.h"

#include <QColor>
#include <QPainter>
#include <QPointF>
#include <QRect>
#include <algorithm>
#include <cmath>
#include <cstdint>

namespace zentrik {

// From the model's colours; bits above the 24 are dropped.
QColor colourOf(std::int32_t colour);

// Whether a painter's device keeps shapes, as a vector file does, instead of pixels. What is drawn on one is
// neither rounded to pixels nor stamped from pictures.
bool keepsShapes(const QPainter& painter);

// While it lives, the painter's unit is one device pixel and its clip the area. The full-frame clip is
// what puts QPainter's lines on their fast path.
class Canvas {
public:
    // Extents in twips; an extent below 0 counts as 0.
    Canvas(QPainter& painter, std::int32_t width, std::int32_t height);
    ~Canvas() { painter.restore(); }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    QPainter& painter;
    const double ratio;            // device pixels to a device-independent one
    const QRect frame;             // device pixels
    const int thinWidth;           // of a line one device-independent pixel wide, in device pixels
    const bool shapes;             // are kept by the device
    std::optional<Bitmap> bitmap;  // where pixels can be reached

    double pixels(double twips) const { return twips * unit; }
    // Width in device pixels of a line `width` device-independent pixels wide; at least 1.
    int lineWidth(double width) const { return std::max(1, static_cast<int>(std::lround(width * ratio))); }
    // The place in device pixels through which thin lines run sharp: the middle of a device pixel when
    // they are an odd number of device pixels wide, the border between two when even. Where shapes are kept,
    // the place itself, half a pixel in as on a screen.
    QPointF place(double x, double y) const { return {sharp(x), sharp(y)}; }

    // The pixel that a place is in, of 32 bits as its twips are.
    Pixel pixel(double x, double y) const { return {nearest(x * unit), nearest(y * unit)}; }

private:
    const double unit;                            // device pixels a twip
    static std::int32_t nearest(double pixels) {  // halves upwards; no call
        const auto whole = static_cast<std::int32_t>(pixels + 0.5);
        return whole - (pixels + 0.5 < static_cast<double>(whole) ? 1 : 0);
    }
    double sharp(double twips) const {
        const double middle = thinWidth % 2 == 1 ? 0.5 : 0;
        return (shapes ? twips * unit : static_cast<double>(nearest(twips * unit))) + middle;
    }
};

}  // namespace zentrik
