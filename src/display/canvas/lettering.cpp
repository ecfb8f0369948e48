#include "display/canvas/lettering.h"

#include "basics/units.h"
#include "display/canvas/face.h"

#include <QPainterPath>
#include <QPen>
#include <algorithm>
#include <list>

namespace zentrik {

namespace {

double luminance(std::int32_t colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const QColor c = colourOf(colour);
    return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
}

double contrast(std::int32_t a, std::int32_t b) {
    const double la = luminance(a) + 0.05, lb = luminance(b) + 0.05;
    return std::max(la / lb, lb / la);
}

std::int32_t mixed(std::int32_t from, std::int32_t to, int eighths) {
    std::int32_t colour = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const int a = (from >> shift) & 0xFF, b = (to >> shift) & 0xFF;
        colour |= (a + (b - a) * eighths / 8) << shift;
    }
    return colour;
}

// The part of a picture that is not transparent.
QRect inked(const QImage& image) {
    QRect found;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) != 0) found |= QRect(x, y, 1, 1);
    return found;
}

constexpr double haloReach = 0.14;  // of the font's size

// Read once a thread; what is kept is plain outlines.
const Glyph& glyphOf(char c) {
    static thread_local const std::vector<Glyph> printable = [] {
        const Face face(Weight::regular);
        std::vector<Glyph> glyphs;
        for (char each = ' '; each <= '~'; ++each)
            glyphs.push_back(face.glyphs(QString(QChar::fromLatin1(each))).front());
        return glyphs;
    }();
    return printable[static_cast<std::size_t>(c - ' ')];
}

}  // namespace

int scenePixels(double ratio, double points) {
    return std::max(1, static_cast<int>(std::lround(points * 96 / 72 * ratio)));
}

double sceneLineHeight() {
    const int size = scenePixels(1);
    return (std::ceil(Face::ascent * size) + std::ceil(Face::descent * size)) * twipsPerPixel;
}

std::int32_t legibleInk(std::int32_t ink, std::int32_t paper) {
    constexpr double sufficient = 3.9;
    // A coloured ink keeps as much of its colour as legibility allows: it tells kinds of numbers apart.
    const double good = ink == black || ink == white ? 7 : 4.5;
    if (contrast(ink, paper) >= sufficient) return ink;
    const std::int32_t end = contrast(black, paper) > contrast(white, paper) ? black : white;
    for (int eighths = 1; eighths < 8; ++eighths)
        if (const std::int32_t mixture = mixed(ink, end, eighths); contrast(mixture, paper) >= good)
            return mixture;
    return end;
}

void strokeHalo(QPainter& painter, const QPainterPath& outline, int size, QColor paper) {
    paper.setAlpha(220);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(outline,
                       QPen(paper, 2 * haloReach * size, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void fillLetters(QPainter& painter, const QPainterPath& outline, QColor ink) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(outline, ink);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

Lettering::Lettering(int size, std::int32_t ink, std::int32_t paper)
    : size_(size),
      ink_(colourOf(legibleInk(ink, paper))),
      paper_(colourOf(paper)),
      ascent_(std::ceil(Face::ascent * size)) {}

const Lettering::Letter& Lettering::letter(char c) {
    if (c < ' ' || c > '~') c = ' ';
    Letter& made = letters_[static_cast<std::size_t>(c)];
    if (made.made) return made;
    const Glyph& glyph = glyphOf(c);
    made.made = true;
    made.advance = std::round(glyph.advance * size_);
    if (glyph.outline.isEmpty()) return made;
    made.outline = scaled(glyph.outline, size_).translated(0, ascent_);

    const QPainterPath sharp = sharpened(glyph.outline, size_).translated(0, ascent_);
    const auto picture = [&](double margin, auto draw) {
        const QRect box = sharp.boundingRect().adjusted(-margin, -margin, margin, margin).toAlignedRect();
        Picture result{box.topLeft(), QImage(box.size(), QImage::Format_ARGB32_Premultiplied)};
        result.image.fill(Qt::transparent);
        QPainter painter(&result.image);
        painter.translate(-box.topLeft());
        draw(painter);
        return result;
    };
    made.halo =
        picture(haloReach * size_ + 1, [&](QPainter& painter) { strokeHalo(painter, sharp, size_, paper_); });
    made.ink = picture(1, [&](QPainter& painter) {
        for (int strike = 0; strike < 2; ++strike)
            fillLetters(painter, sharp, ink_);  // thin strokes keep dark
    });
    return made;
}

void Lettering::print(QPainter& painter, QPointF topLeft, std::string_view text) {
    if (keepsShapes(painter))
        printShapes(painter, topLeft, text);
    else if (text.find_first_not_of(" 0123456789") == std::string_view::npos)
        printNumber(painter, topLeft, text);
    else
        printLetters(painter, topLeft, text);
}

void Lettering::printShapes(QPainter& painter, QPointF topLeft, std::string_view text) {
    for (const bool halo : {true, false}) {
        painter.save();
        painter.translate(topLeft);
        for (const char c : text) {
            const Letter& made = letter(c);
            if (halo && !made.outline.isEmpty()) strokeHalo(painter, made.outline, size_, paper_);
            if (!halo && !made.outline.isEmpty()) fillLetters(painter, made.outline, ink_);
            painter.translate(made.advance, 0);
        }
        painter.restore();
    }
}

// All halos first, so that none covers its neighbour's ink.
void Lettering::printLetters(QPainter& painter, QPointF topLeft, std::string_view text) {
    for (const auto part : {&Letter::halo, &Letter::ink}) {
        QPointF corner = topLeft;
        for (const char c : text) {
            const Letter& made = letter(c);
            const Picture& picture = made.*part;
            if (!picture.image.isNull()) painter.drawImage(corner.toPoint() + picture.offset, picture.image);
            corner.rx() += made.advance;
        }
    }
}

// A picture costs about the same whether it holds one digit or three, halo and ink or one of them.
void Lettering::printNumber(QPainter& painter, QPointF topLeft, std::string_view text) {
    bool first = true;
    for (QPointF corner = topLeft; !text.empty();) {
        const std::string_view digits = text.substr(0, std::min(text.find(' '), longestGroup));
        if (digits.empty()) {
            corner.rx() += letter(' ').advance;
            text.remove_prefix(1);
            first = true;
            continue;
        }
        const Picture& picture = digitsPicture(digits, first);
        painter.drawImage(corner.toPoint() + picture.offset, picture.image);
        corner.rx() += picture.advance;
        text.remove_prefix(digits.size());
        first = false;
    }
}

// Behind other digits the halo's left edge is cut off, which would cover their ink.
const Lettering::Picture& Lettering::digitsPicture(std::string_view digits, bool first) {
    std::size_t place = first ? 1 : 2;  // tells numbers apart by their length and by where they stand
    for (const char c : digits) place = place * 10 + static_cast<std::size_t>(c - '0');
    Picture& picture = digits_[place];
    if (!picture.image.isNull()) return picture;
    QRect box;
    QPointF corner;
    for (const char c : digits) {
        const Letter& made = letter(c);
        for (const Picture* part : {&made.halo, &made.ink})
            box |= QRect(corner.toPoint() + part->offset, part->image.size());
        corner.rx() += made.advance;
    }
    if (!first) box.setLeft(0);
    picture = {box.topLeft(), QImage(box.size(), QImage::Format_ARGB32_Premultiplied), corner.x()};
    picture.image.fill(Qt::transparent);
    QPainter painter(&picture.image);
    printLetters(painter, -box.topLeft(), digits);
    painter.end();
    const QRect ink = inked(picture.image);
    picture.image = picture.image.copy(ink);
    picture.offset += ink.topLeft();
    return picture;
}

double Lettering::width(std::string_view text) {
    double sum = 0;
    for (const char c : text) sum += letter(c).advance;
    return sum;
}

Lettering& lettering(double ratio, std::int32_t ink, std::int32_t paper) {
    struct Kept {
        double ratio;
        std::int32_t ink, paper;
        Lettering letters;
    };
    constexpr std::size_t most = 8;
    static thread_local std::list<Kept> kept;
    for (Kept& it : kept)
        if (it.ratio == ratio && it.ink == ink && it.paper == paper) return it.letters;
    if (kept.size() == most) kept.pop_front();
    kept.push_back({ratio, ink, paper, Lettering(scenePixels(ratio), ink, paper)});
    return kept.back().letters;
}

}  // namespace zentrik
