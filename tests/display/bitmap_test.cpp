// Thin lines and stamps that are written into the picture by the program itself, against QPainter's.

#include "display/canvas/bitmap.h"

#include "basics/chance.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <limits>

namespace zentrik {
namespace {

QImage blank(int width = 64, int height = 48) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

QImage drawn(Pixel from, Pixel to, const QRect& clip = {}, QRgb colour = qRgb(0, 0, 0)) {
    QImage image = blank();
    QPainter painter(&image);
    if (!clip.isNull()) painter.setClipRect(clip);
    Bitmap::under(painter)->line(from, to, colour);
    return image;
}

QImage byPainter(Pixel from, Pixel to) {
    QImage image = blank();
    QPainter painter(&image);
    painter.setClipRect(image.rect());
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(Qt::black, 1);
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    const auto middle = [](Pixel p) {
        return QPointF(static_cast<double>(p.x) + 0.5, static_cast<double>(p.y) + 0.5);
    };
    painter.drawLine(middle(from), middle(to));
    return image;
}

struct Apart {
    double sum = 0;
    int touched = 0;
};
void compare(const QImage& a, const QImage& b, Apart& apart) {
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const int one = qRed(a.pixel(x, y)), other = qRed(b.pixel(x, y));
            if (one == 255 && other == 255) continue;
            ++apart.touched;
            apart.sum += std::abs(one - other);
        }
}

TEST(Bitmap, LinesLookLikeThePaintersAndAreTheSameFromEitherEnd) {
    Chance chance;
    Apart apart;
    for (int round = 0; round < 400; ++round) {
        const auto any = [&](int extent) {
            return static_cast<std::int32_t>(chance.next() * static_cast<float>(extent));
        };
        const Pixel a{any(64), any(48)}, b{any(64), any(48)};
        const QImage ours = drawn(a, b);
        EXPECT_EQ(ours, drawn(b, a));
        compare(ours, byPainter(a, b), apart);
        // Every step along the longer axis holds one pixel's worth of ink: no gaps.
        const bool steep = std::abs(b.y - a.y) > std::abs(b.x - a.x);
        for (std::int32_t step = std::min(steep ? a.y : a.x, steep ? b.y : b.x) + 1;
             step < std::max(steep ? a.y : a.x, steep ? b.y : b.x); ++step) {
            int ink = 0;
            for (int across = 0; across < (steep ? 64 : 48); ++across)
                ink += 255 - qRed(steep ? ours.pixel(across, step) : ours.pixel(step, across));
            const bool inside =
                std::min({a.x, b.x, a.y, b.y}) > 0 && std::max(a.x, b.x) < 63 && std::max(a.y, b.y) < 47;
            if (inside) {
                EXPECT_NEAR(ink, 255, 3) << a.x << ',' << a.y << ' ' << b.x << ',' << b.y;
            }
        }
    }
    EXPECT_LE(apart.sum / static_cast<double>(apart.touched), 12);
}

TEST(Bitmap, AClipChangesNoPixelInsideItAndNoneOutside) {
    Chance chance;
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    for (int round = 0; round < 3000; ++round) {
        const double reach = round % 3 == 0 ? 100 : round % 3 == 1 ? 3000 : most;
        const auto any = [&] { return static_cast<std::int32_t>((chance.next() - 0.5) * 2 * reach); };
        const Pixel a{any(), any()}, b{round % 7 == 0 ? a.x : any(), round % 11 == 0 ? a.y : any()};
        const QRect clip(9, 7, 40, 30);
        QImage whole = drawn(a, b), expected = blank();
        QPainter(&expected).drawImage(clip.topLeft(), whole, clip);
        EXPECT_EQ(drawn(a, b, clip), expected) << a.x << ',' << a.y << ' ' << b.x << ',' << b.y;
    }
}

// Stamps around the border: what is inside is as if there were none, and nothing is written outside, which
// the last row of a picture would show under a sanitizer.
TEST(Bitmap, PicturesEndAtTheBorder) {
    QImage ball(13, 13, QImage::Format_ARGB32_Premultiplied);
    ball.fill(Qt::transparent);
    {
        QPainter painter(&ball);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(QColor(10, 200, 90));
        painter.drawEllipse(QPointF(6.5, 6.5), 5, 5);
    }
    const std::vector<Tile> tiles = tilesOf(ball);
    const auto stamped = [&](const QRect& clip, QPoint corner, bool byPainter) {
        QImage image = blank(clip.width(), clip.height());
        QPainter painter(&image);
        if (byPainter)
            painter.drawImage(corner - clip.topLeft(), ball);
        else
            Bitmap::under(painter)->picture({corner - clip.topLeft(), ball.size()}, tiles);
        return image;
    };
    const QRect all(0, 0, 64, 48), part(20, 15, 21, 19);
    for (int y = 0; y < 40; ++y)
        for (int x = 4; x < 48; ++x) {
            const QImage whole = stamped(all, {x, y}, false);
            EXPECT_EQ(stamped(part, {x, y}, false), whole.copy(part)) << x << ',' << y;
            Apart apart;
            compare(whole, stamped(all, {x, y}, true), apart);
            EXPECT_LE(apart.sum, apart.touched) << x << ',' << y;
        }
}

TEST(Bitmap, IsFoundOnlyWhereAPixelIsAPixel) {
    QImage image = blank(), other(9, 9, QImage::Format_RGB16);
    QPainter painter(&image), onOther(&other);
    EXPECT_TRUE(Bitmap::under(painter));
    EXPECT_FALSE(Bitmap::under(onOther));
    painter.translate(3, 2);
    ASSERT_TRUE(Bitmap::under(painter));
    Bitmap::under(painter)->line({-1, 0}, {5, 0}, qRgb(0, 0, 255));
    EXPECT_EQ(image.pixel(5, 2), qRgb(0, 0, 255));
    painter.translate(0.5, 0);
    EXPECT_FALSE(Bitmap::under(painter));
    painter.resetTransform();
    painter.scale(2, 2);
    EXPECT_FALSE(Bitmap::under(painter));
    painter.resetTransform();
    painter.setClipRegion(QRegion(0, 0, 5, 5) + QRegion(9, 9, 5, 5));
    EXPECT_FALSE(Bitmap::under(painter));
}

}  // namespace
}  // namespace zentrik
