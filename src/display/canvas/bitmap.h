#pragma once
// The pixels under a painter, for marks that are drawn by the ten thousand: thin smooth lines and small
// pictures. What is written here QPainter finds as if it had drawn it.

#include <QImage>
#include <QRect>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

class QPainter;

namespace zentrik {

// The four channels of a colour, as far apart as products with 256 need, and back.
inline std::uint64_t apart(std::uint64_t colour) { return (colour | colour << 24) & 0x00FF00FF00FF00FF; }
inline QRgb together(std::uint64_t parts) {
    parts &= 0x00FF00FF00FF00FF;
    return static_cast<QRgb>(parts | parts >> 24);
}

// A pixel, from the painter's origin; it may lie anywhere.
struct Pixel {
    std::int32_t x = 0, y = 0;
};

// Four pixels of a premultiplied picture side by side, those that let everything be seen through left out.
struct Tile {
    int x = 0, y = 0;  // of the first, from the picture's upper left corner
    // A channel each. shown: 255 less the opacity; over: 256 times the channel and 255, so that what is seen
    // is (under * shown + over) / 256, which fits 16 bits.
    std::array<std::uint16_t, 16> shown{}, over{};
};
std::vector<Tile> tilesOf(const QImage& picture);
// Makes tiles those of the same picture in another colour.
void recolour(std::span<Tile> tiles, const QImage& picture);

class Bitmap {
public:
    // None where the painter's unit is not a pixel of an image of 32 bits, or its clip is no rectangle.
    static std::optional<Bitmap> under(const QPainter& painter);

    // A smooth line of one pixel's width from a pixel to another, both of which it covers. The same from
    // either end; one of no length is not seen.
    void line(Pixel from, Pixel to, QRgb opaque) const;

    // The picture that the tiles were made of; place: its upper left corner and its size.
    void picture(const QRect& place, std::span<const Tile> tiles) const;

private:
    QRgb* pixels_ = nullptr;  // of the origin's row and column, if that is inside
    std::ptrdiff_t stride_ = 0;
    QRect clip_;

    QRgb* at(std::int64_t x, std::int64_t y) const { return pixels_ + y * stride_ + x; }
};

}  // namespace zentrik
