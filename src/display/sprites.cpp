#include "display/sprites.h"

#include "model/store.h"

#include <QDir>
#include <QImageReader>
#include <QSvgRenderer>
#include <algorithm>
#include <utility>

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

bool isVector(const QImageReader& reader) {
    return reader.fileName().endsWith(".svg", Qt::CaseInsensitive) ||
           reader.format().startsWith(QByteArray("svg"));
}

QImage readPixelPicture(QImageReader& reader, double ratio) {
    const QImage picture = reader.read();
    if (picture.isNull() || !fits(picture.size())) return {};
    const auto format =
        picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    const QImage plain = picture.convertToFormat(format);
    const QSize size = deviceSize(picture.size(), ratio);
    if (size == picture.size()) return plain;
    return plain.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(format);
}

void prepare(QImageReader& reader) {
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
}

// Most formats tell a picture's size in front. Empty where the file holds no usable picture.
QSize pictureSize(const QString& path) {
    QImageReader reader(path);
    prepare(reader);
    QSize size = reader.size();
    if (isVector(reader)) {
        const QSvgRenderer renderer(path);
        size = renderer.isValid() ? renderer.defaultSize() : QSize();
    } else if (!size.isValid()) {
        size = reader.read().size();
    } else if (reader.transformation().testFlag(QImageIOHandler::TransformationRotate90)) {
        size.transpose();
    }
    return fits(size) ? size : QSize();
}

QImage readPicture(const QString& path, double ratio) {
    QImageReader reader(path);
    prepare(reader);
    QImage picture = isVector(reader) ? readVectorPicture(path, ratio) : readPixelPicture(reader, ratio);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

bool contains(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

SpritePictures::SpritePictures() : decoded_(roomInKilobytes) {}

std::vector<std::string> SpritePictures::read(const std::string& folder) {
    folder_ = folder;
    decoded_.clear();
    const QDir dir(QString::fromStdString(folder));
    std::vector<std::string> fresh;
    for (const QString& file : dir.entryList(QDir::Files | QDir::Readable, QDir::Name)) {
        const std::string name = file.toStdString();
        const QSize size = pictureSize(dir.filePath(file));
        if (const auto known = std::find(names_.begin(), names_.end(), name); known != names_.end()) {
            sizes_[static_cast<std::size_t>(known - names_.begin())] = size;
        } else if (!size.isEmpty() && !file.contains(" : ")) {
            // A name with a field separator would not come back from a project file.
            names_.push_back(name);
            sizes_.push_back(size);
        } else if (!contains(skipped_, name)) {
            fresh.push_back(name);
        }
    }
    skipped_.insert(skipped_.end(), fresh.begin(), fresh.end());
    return fresh;
}

void SpritePictures::setRatio(double devicePixelRatio) {
    if (ratio_ == devicePixelRatio) return;
    ratio_ = devicePixelRatio;
    decoded_.clear();
}

QImage SpritePictures::picture(std::size_t number) const {
    if (number == 0) return {};
    if (const QImage* kept = decoded_.object(number)) return *kept;
    // The largest take half of the room at most, at the cost of scaling them when they are painted.
    const QSize size = sizes_[number];
    const double longest = std::max({size.width(), size.height(), 1});
    const QDir dir(QString::fromStdString(folder_));
    const QImage picture =
        readPicture(dir.filePath(QString::fromStdString(names_[number])), std::min(ratio_, 4096 / longest));
    decoded_.insert(number, new QImage(picture), picture.sizeInBytes() / 1024 + 1);
    return picture;
}

void ShowImages(const Canvas& canvas, const Editor& ed, const SpritePictures& sprites) {
    canvas.painter.setRenderHint(QPainter::SmoothPixmapTransform);
    std::size_t last = 0;  // neighbours often have the same
    QImage picture;
    forEachNode(ed, [&](std::int32_t, const Node& node) {
        const auto number = static_cast<std::size_t>(node.SpriteIndex);
        if (node.SpriteIndex < 1 || number >= sprites.names().size()) return;
        // Pictures made for another device pixel ratio keep their size, at the cost of scaling.
        const QSize size = (QSizeF(sprites.size(number)) * canvas.ratio).toSize();
        const QPointF corner =
            canvas.place(node.X, node.Y) - QPointF(size.width() / 2.0, size.height() / 2.0);
        if (!QRectF(corner, QSizeF(size)).intersects(QRectF(canvas.frame))) return;
        const QPointF whole(std::floor(corner.x()), std::floor(corner.y()));
        if (std::exchange(last, number) != number) picture = sprites.picture(number);
        if (!picture.isNull())
            canvas.painter.drawImage(QRectF(canvas.shapes ? corner : whole, size), picture);
    });
    canvas.painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
}

}  // namespace zentrik
