#include "export/drawing.h"

#include <QBuffer>
#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>
#include <cmath>

namespace zentrik {

namespace {

constexpr int largestSide = 32767;  // of what QPainter fills
constexpr double pixelsPerMetre = 96 / 0.0254;

std::string bytesOf(const QBuffer& buffer) { return buffer.data().toStdString(); }

PictureFile pngFile(const Drawing& drawing, const Look& look) {
    std::string bytes = pngBytes(imageOf(drawing, look));
    if (bytes.empty()) return {"", "So large a picture cannot be made."};
    return {std::move(bytes), ""};
}

PictureFile svgFile(const Drawing& drawing, const Look& look) {
    QBuffer buffer;
    QSvgGenerator file;
    file.setOutputDevice(&buffer);
    file.setResolution(96);
    file.setSize(drawing.size * look.scale);
    file.setViewBox(QRect(QPoint(), drawing.size));
    file.setTitle(drawing.title.toHtmlEscaped());  // it does not do so itself
    QPainter painter(&file);
    drawing.paint(painter);
    painter.end();
    return {bytesOf(buffer), ""};
}

PictureFile pdfFile(const Drawing& drawing, const Look& look) {
    constexpr double points = 72.0 / 96;  // a pixel
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter file(&buffer);
    file.setTitle(drawing.title);
    file.setResolution(96);
    file.setPageMargins({});
    file.setPageSize(
        QPageSize(QSizeF(drawing.size) * look.scale * points, QPageSize::Point, {}, QPageSize::ExactMatch));
    QPainter painter(&file);
    painter.scale(look.scale, look.scale);
    drawing.paint(painter);
    painter.end();
    return {bytesOf(buffer), ""};
}

constexpr PictureFormatRow formats[] = {
    {.name = "PNG, a bitmap", .suffix = "png", .keepsShapes = false, .make = pngFile},
    {.name = "SVG, a drawing", .suffix = "svg", .keepsShapes = true, .make = svgFile},
    {.name = "PDF, a drawing", .suffix = "pdf", .keepsShapes = true, .make = pdfFile},
};

}  // namespace

std::span<const PictureFormatRow> pictureFormats() { return formats; }

QImage imageOf(const Drawing& drawing, const Look& look) {
    const QSize size = drawing.size * look.scale;
    if (std::max(size.width(), size.height()) > largestSide) return {};
    QImage image(size, look.transparent ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (image.isNull()) return {};
    image.setDevicePixelRatio(look.scale);
    const int density = static_cast<int>(std::lround(pixelsPerMetre * look.scale));
    image.setDotsPerMeterX(density);
    image.setDotsPerMeterY(density);
    // To the edge, where a part of a pixel is left over.
    image.fill(look.transparent ? Qt::transparent : drawing.ground);
    QPainter painter(&image);
    drawing.paint(painter);
    return image;
}

std::string pngBytes(const QImage& image) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "PNG") ? bytesOf(buffer) : std::string();
}

}  // namespace zentrik
