#include "display/canvas/face.h"

#include <QFile>
#include <QTransform>
#include <algorithm>
#include <cassert>
#include <cmath>

namespace zentrik {

namespace {

// At the size it was designed in, a letter's outline is that of the file: there is nothing to hint.
constexpr double designSize = 2048;

QRawFont opened(Weight weight) {
    QFile file(weight == Weight::bold ? ":/fonts/LiberationSans-Bold.ttf"
                                      : ":/fonts/LiberationSans-Regular.ttf");
    const bool read = file.open(QIODevice::ReadOnly);
    assert(read);
    return QRawFont(read ? file.readAll() : QByteArray(), designSize, QFont::PreferNoHinting);
}

}  // namespace

Face::Face(Weight weight) : font_(opened(weight)) {
    assert(font_.unitsPerEm() == designSize && font_.ascent() == ascent * designSize);
}

bool Face::has(char32_t character) const { return font_.supportsCharacter(character); }

std::vector<Glyph> Face::glyphs(const QString& text) const {
    const auto indexes = font_.glyphIndexesForString(text);
    const auto advances =
        font_.advancesForGlyphIndexes(indexes, QRawFont::UseDesignMetrics | QRawFont::KernedAdvances);
    std::vector<Glyph> glyphs;
    for (qsizetype i = 0; i < std::min(indexes.size(), advances.size()); ++i)
        glyphs.push_back(
            {scaled(font_.pathForGlyph(indexes[i]), 1 / designSize), advances[i].x() / designSize});
    return glyphs;
}

QPainterPath scaled(const QPainterPath& outline, double size) {
    return QTransform::fromScale(size, size).map(outline);
}

QPainterPath sharpened(const QPainterPath& outline, double size) {
    const QRectF box = outline.boundingRect();
    if (box.height() <= 0) return {};
    const double bottom = std::round(box.bottom() * size);
    const double top = std::min(std::round(box.top() * size), bottom - 1);
    const double stretch = (bottom - top) / box.height();
    return QTransform(size, 0, 0, stretch, 0, bottom - box.bottom() * stretch).map(outline);
}

}  // namespace zentrik
