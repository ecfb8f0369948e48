#include "export/picture.h"

#include "basics/units.h"
#include "display/scene.h"

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

// Beyond what the largest scale makes too large it makes no difference.
constexpr int largestScene = 1 << 20;

Ground groundOf(const Look& look) { return look.transparent ? Ground::clear : Ground::painted; }

// A sprite that stands among shapes is to be sharp when they are enlarged.
void sharpenSprites(Subject& subject) { subject.sprites.setRatio(4); }

std::string bytesOf(const QBuffer& buffer) { return buffer.data().toStdString(); }

PictureFile pngFile(Subject& subject, const Look& look) {
    subject.sprites.setRatio(look.scale);
    std::string bytes = pngBytes(sceneImage(subject, look));
    if (bytes.empty()) return {"", "So large a picture cannot be made."};
    return {std::move(bytes), ""};
}

PictureFile svgFile(Subject& subject, const Look& look) {
    sharpenSprites(subject);
    QBuffer buffer;
    QSvgGenerator file;
    const QSize size = sceneSize(subject.ed);
    file.setOutputDevice(&buffer);
    file.setResolution(96);
    file.setSize(size * look.scale);
    file.setViewBox(QRect(QPoint(), size));
    file.setTitle(titleOf(subject.ed).toHtmlEscaped());  // it does not do so itself
    QPainter painter(&file);
    drawScene(painter, subject.ed, subject.sprites, groundOf(look));
    painter.end();
    return {bytesOf(buffer), ""};
}

PictureFile pdfFile(Subject& subject, const Look& look) {
    sharpenSprites(subject);
    constexpr double points = 72.0 / 96;  // a pixel
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter file(&buffer);
    file.setTitle(titleOf(subject.ed));
    file.setResolution(96);
    file.setPageMargins({});
    file.setPageSize(QPageSize(QSizeF(sceneSize(subject.ed)) * look.scale * points, QPageSize::Point, {},
                               QPageSize::ExactMatch));
    QPainter painter(&file);
    painter.scale(look.scale, look.scale);
    drawScene(painter, subject.ed, subject.sprites, groundOf(look));
    painter.end();
    return {bytesOf(buffer), ""};
}

constexpr PictureFormatRow formats[] = {
    {.name = "PNG, a bitmap", .suffix = "png", .make = pngFile},
    {.name = "SVG, a drawing", .suffix = "svg", .make = svgFile},
    {.name = "PDF, a drawing", .suffix = "pdf", .make = pdfFile},
};

}  // namespace

std::span<const PictureFormatRow> pictureFormats() { return formats; }

QString titleOf(const Editor& ed) {
    QString title = QString::fromStdString(ed.ProjectTitle).left(1000);
    title.removeIf([](QChar c) { return c < u' ' || c.isNonCharacter() || c.isSurrogate(); });
    return title;
}

QSize sceneSize(const Editor& ed) {
    const auto extent = [](std::int32_t twips) { return std::clamp(pixels(twips), 1, largestScene); };
    return {extent(ed.sceneWidth), extent(ed.sceneHeight)};
}

QImage sceneImage(const Subject& subject, const Look& look) {
    const QSize size = sceneSize(subject.ed) * look.scale;
    if (std::max(size.width(), size.height()) > largestSide) return {};
    QImage image(size, look.transparent ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (image.isNull()) return {};
    image.setDevicePixelRatio(look.scale);
    const int density = static_cast<int>(std::lround(pixelsPerMetre * look.scale));
    image.setDotsPerMeterX(density);
    image.setDotsPerMeterY(density);
    // To the edge, where a part of a pixel is left over.
    image.fill(look.transparent ? Qt::transparent : colourOf(subject.ed.BackColor));
    QPainter painter(&image);
    drawScene(painter, subject.ed, subject.sprites, groundOf(look));
    return image;
}

std::string pngBytes(const QImage& image) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "PNG") ? bytesOf(buffer) : std::string();
}

PictureFile pictureFile(Subject& subject, PictureFormat format, const Look& look) {
    return formats[static_cast<std::size_t>(format)].make(subject, look);
}

}  // namespace zentrik
