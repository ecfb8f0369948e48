#include "display/sprites.h"

#include "model/store.h"

#include <QDir>
#include <QImageReader>
#include <QSvgRenderer>
#include <optional>

namespace zentrik {

namespace {

constexpr int largestSide = 2048;

bool fits(QSize size) {
    return !size.isEmpty() && size.width() <= largestSide && size.height() <= largestSide;
}

QSize deviceSize(QSize size, double ratio) { return (QSizeF(size) * ratio).toSize().expandedTo(QSize(1, 1)); }

QImage readVectorPicture(const QString& path, double ratio) {
    QSvgRenderer renderer(path);
    if (!renderer.isValid() || !fits(renderer.defaultSize())) return {};
    QImage picture(deviceSize(renderer.defaultSize(), ratio), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter);
    return picture;
}

QImage readPixelPicture(QImageReader& reader, double ratio) {
    if (reader.size().isValid() && !fits(reader.size())) return {};
    const QImage picture = reader.read();
    if (picture.isNull() || !fits(picture.size())) return {};
    const auto format =
        picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    const QImage plain = picture.convertToFormat(format);
    const QSize size = deviceSize(picture.size(), ratio);
    if (size == picture.size()) return plain;
    return plain.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(format);
}

QImage readPicture(const QString& path, double ratio) {
    QImageReader reader(path);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const bool vector =
        path.endsWith(".svg", Qt::CaseInsensitive) || reader.format().startsWith(QByteArray("svg"));
    QImage picture = vector ? readVectorPicture(path, ratio) : readPixelPicture(reader, ratio);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

}  // namespace

SpritePictures loadSprites(const std::string& folder, double devicePixelRatio) {
    SpritePictures sprites;
    const QDir dir(QString::fromStdString(folder));
    const QStringList names = dir.entryList(QDir::Files | QDir::Readable, QDir::Name);
    for (const QString& name : names) {
        const QImage picture = readPicture(dir.filePath(name), devicePixelRatio);
        // A name with a field separator would not come back from a project file.
        if (picture.isNull() || name.contains(" : ")) {
            sprites.skipped.push_back(name.toStdString());
            continue;
        }
        sprites.names.push_back(name.toStdString());
        sprites.pictures.push_back(picture);
    }
    return sprites;
}

void ShowImages(const Canvas& canvas, const Editor& ed, const SpritePictures& sprites) {
    // Pictures made for another device pixel ratio keep their size, at the cost of scaling.
    std::vector<QSize> sizes;
    for (const QImage& picture : sprites.pictures)
        sizes.push_back((picture.deviceIndependentSize() * canvas.ratio).toSize());
    canvas.painter.setRenderHint(QPainter::SmoothPixmapTransform);
    forEachNode(ed, [&](std::int32_t, const Node& node) {
        const auto number = static_cast<std::size_t>(node.SpriteIndex);
        if (node.SpriteIndex < 1 || number >= sprites.pictures.size()) return;
        const QSize size = sizes[number];
        const QPointF corner =
            canvas.place(node.X, node.Y) - QPointF(size.width() / 2.0, size.height() / 2.0);
        if (!QRectF(corner, QSizeF(size)).intersects(QRectF(canvas.frame))) return;
        const QPoint at(static_cast<int>(std::floor(corner.x())), static_cast<int>(std::floor(corner.y())));
        canvas.painter.drawImage(QRect(at, size), sprites.pictures[number]);
    });
    canvas.painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
}

}  // namespace zentrik
