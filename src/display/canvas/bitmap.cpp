#include "display/canvas/bitmap.h"

#include <QPaintEngine>
#include <QPainter>
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <utility>

namespace zentrik {

namespace {

// under + (over - under) * part / 256
QRgb mixed(std::uint64_t over, QRgb under, std::uint32_t part) {
    const std::uint64_t ground = apart(under);
    return together(((ground << 8) + (over - ground) * part) >> 8);
}

using Channels = std::array<std::uint8_t, 16>;

Channels covered(const Channels& under, const Tile& tile) {
    Channels mixed;
#pragma GCC unroll 1  // left to itself the compiler writes out sixteen lines and shortens none
    for (std::size_t i = 0; i < mixed.size(); ++i)
        mixed[i] = static_cast<std::uint8_t>(
            static_cast<std::uint16_t>(under[i] * tile.shown[i] + tile.over[i]) >> 8);
    return mixed;
}

// The image that a painter paints in, whoever owns it.
QImage* imageUnder(const QPainter& painter) {
    QPaintEngine* engine = painter.paintEngine();
    if (engine == nullptr || engine->type() != QPaintEngine::Raster) return nullptr;
    QPaintDevice* device = engine->paintDevice();
    return device->devType() == QInternal::Image ? static_cast<QImage*>(device) : nullptr;
}

struct Point {  // whose differences fit too
    std::int64_t x, y;
};

struct Range {
    std::int64_t first = 0, last = 0;

    bool holds(std::int64_t place) const { return place >= first && place <= last; }
};

// A line seen with its longer axis as x and its left end first. At every step it has a place between two
// pixels, and covers either the more the nearer it is (Wu, An Efficient Antialiasing Technique, 1991).
class Course {
public:
    // onward, sideward: from a pixel to the next along either axis.
    Course(Point from, Point to, std::uint64_t ink, QRgb* pixels, std::ptrdiff_t onward,
           std::ptrdiff_t sideward)
        : from_(from),
          to_(to),
          slope_(static_cast<double>(to.y - from.y) / static_cast<double>(to.x - from.x)),
          step_(static_cast<std::int64_t>(slope_ * (1LL << 32))),
          ink_(ink),
          pixels_(pixels),
          onward_(onward),
          sideward_(sideward) {}

    // Where it may be inside a clip.
    Range inside(Range along, Range across) const {
        const Range part{std::max(from_.x, along.first), std::min(to_.x, along.last)};
        const auto [low, high] = std::minmax({from_.y, to_.y});
        if (high < across.first - 1 || low > across.last + 1) return {0, -1};
        if (slope_ == 0) return part;
        const auto wayTo = [&](std::int64_t y) {
            return from_.x + static_cast<std::int64_t>(static_cast<double>(y - from_.y) / slope_);
        };
        const auto [enters, leaves] = std::minmax({wayTo(across.first - 1), wayTo(across.last + 1)});
        return {std::max(part.first, enters - 1), std::min(part.last, leaves + 1)};
    }

    // Of its pixels in a range those in the rows that are seen.
    template <class IsSeen>
    void draw(Range part, IsSeen isSeen) const {
        // Counted from the true end, so that a clip moves nothing; without a sign, as what is far away wraps
        // on the way.
        const auto wrapping = [](std::int64_t whole) { return static_cast<std::uint64_t>(whole); };
        auto place = static_cast<std::int64_t>((wrapping(from_.y) << 32) +
                                               wrapping(part.first - from_.x) * wrapping(step_));
        QRgb* column = pixels_ + part.first * onward_;
        for (std::int64_t x = part.first; x <= part.last; ++x, place += step_, column += onward_) {
            const std::int64_t row = place >> 32;
            const std::uint32_t share = static_cast<std::uint32_t>(place >> 24) & 0xFF;
            QRgb* pixel = column + row * sideward_;
            if (isSeen(row)) *pixel = mixed(ink_, *pixel, 256 - share);
            if (share != 0 && isSeen(row + 1)) pixel[sideward_] = mixed(ink_, pixel[sideward_], share);
        }
    }

private:
    const Point from_, to_;
    const double slope_;
    const std::int64_t step_;  // places are counted in parts of a pixel, 2^32 each
    const std::uint64_t ink_;
    QRgb* const pixels_;
    const std::ptrdiff_t onward_, sideward_;
};

}  // namespace

std::vector<Tile> tilesOf(const QImage& picture) {
    std::vector<Tile> tiles;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        const auto* const end = row + picture.width();
        const auto isSeen = [](QRgb pixel) { return pixel != 0; };
        for (const auto* at = std::find_if(row, end, isSeen); at < end;
             at = at + 4 < end ? std::find_if(at + 4, end, isSeen) : end) {
            Tile& tile = tiles.emplace_back(Tile{static_cast<int>(at - row), y, {}, {}});
            for (std::size_t i = 0; i < tile.shown.size(); ++i)
                tile.shown[i] = static_cast<std::uint16_t>(255 - (at + i / 4 < end ? qAlpha(at[i / 4]) : 0));
        }
    }
    recolour(tiles, picture);
    return tiles;
}

void recolour(std::span<Tile> tiles, const QImage& picture) {
    for (Tile& tile : tiles) {
        Channels seen{};
        const auto* from = picture.constScanLine(tile.y) + std::size_t{4} * static_cast<unsigned>(tile.x);
        if (tile.x + 4 <= picture.width())
            std::memcpy(&seen, from, sizeof seen);
        else
            std::memcpy(&seen, from, std::size_t{4} * static_cast<unsigned>(picture.width() - tile.x));
        for (std::size_t i = 0; i < seen.size(); ++i)
            tile.over[i] = static_cast<std::uint16_t>(256 * seen[i] + 255);
    }
}

std::optional<Bitmap> Bitmap::under(const QPainter& painter) {
    QImage* image = imageUnder(painter);
    if (image == nullptr ||
        (image->format() != QImage::Format_RGB32 && image->format() != QImage::Format_ARGB32_Premultiplied))
        return {};
    const QTransform& to = painter.deviceTransform();
    const QPoint origin = QPointF(to.dx(), to.dy()).toPoint();
    const QTransform whole = QTransform::fromTranslate(origin.x(), origin.y());
    QRegion clip(image->rect());
    if (painter.hasClipping()) clip &= to.map(painter.clipRegion());
    if (const QRegion system = painter.paintEngine()->systemClip(); !system.isEmpty()) clip &= system;
    if (!qFuzzyCompare(to, whole) || clip.rectCount() > 1) return {};
    Bitmap bitmap;
    bitmap.stride_ = image->bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(QRgb));
    bitmap.pixels_ = reinterpret_cast<QRgb*>(const_cast<uchar*>(image->constBits())) + origin.x() +
                     origin.y() * bitmap.stride_;
    bitmap.clip_ = clip.boundingRect().translated(-origin);
    return bitmap;
}

void Bitmap::line(Pixel a, Pixel b, QRgb opaque) const {
    Point from{a.x, a.y}, to{b.x, b.y};
    const bool steep = std::abs(to.y - from.y) > std::abs(to.x - from.x);
    Range along{clip_.left(), clip_.right()}, across{clip_.top(), clip_.bottom()};
    if (steep) {
        std::swap(from.x, from.y), std::swap(to.x, to.y);
        std::swap(along, across);
    }
    if (from.x > to.x) std::swap(from, to);
    if (from.x == to.x) return;
    const Course course(from, to, apart(opaque), pixels_, steep ? stride_ : 1, steep ? 1 : stride_);
    const auto [low, high] = std::minmax({from.y, to.y});
    if (along.holds(from.x) && along.holds(to.x) && across.holds(low) && across.holds(high + 1))
        return course.draw({from.x, to.x}, [](std::int64_t) { return true; });
    course.draw(course.inside(along, across), [&](std::int64_t row) { return across.holds(row); });
}

void Bitmap::picture(const QRect& place, std::span<const Tile> tiles) const {
    QRgb* const corner = at(place.x(), place.y());
    const std::ptrdiff_t stride = stride_;
    Channels four{};
    if (clip_.contains(place.adjusted(0, 0, 3, 0))) {  // the last tile of a row may reach further
        for (const Tile& tile : tiles) {
            QRgb* const to = corner + tile.y * stride + tile.x;
            std::memcpy(&four, to, sizeof four);
            four = covered(four, tile);
            std::memcpy(to, &four, sizeof four);
        }
        return;
    }
    for (const Tile& tile : tiles)
        for (int i = 0; i < 4; ++i) {
            if (!clip_.contains(place.topLeft() + QPoint(tile.x + i, tile.y))) continue;
            QRgb* const to = corner + tile.y * stride + tile.x + i;
            const auto channel = four.begin() + 4 * i;
            std::memcpy(&*channel, to, 4);
            four = covered(four, tile);
            std::memcpy(to, &*channel, 4);
        }
}

}  // namespace zentrik
