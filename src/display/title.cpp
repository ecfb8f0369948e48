#include "display/title.h"

#include "display/canvas/face.h"
#include "display/canvas/lettering.h"

#include <QFont>
#include <QFontMetricsF>
#include <QTextBoundaryFinder>
#include <algorithm>

namespace zentrik {

namespace {

// Letters of one kind: of the scene's face, or of the desktop's fonts, which know the writings that the face
// lacks.
struct Piece {
    QString text;
    bool own = true;
    double left = 0;  // from the title's left end, pixels
};

struct Title {
    QString text;
    int size = 0;                      // of the font, pixels
    bool shapes = false;               // are kept by what it is drawn on
    double width = 0;                  // pixels
    QPainterPath outline, ownLetters;  // of all of it, and of what is in the face
    std::vector<Piece> foreign;
};

QFont desktopFont(int size) {
    QFont font;
    font.setPixelSize(size);
    font.setBold(true);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

// Letters that run leftwards take their neighbours along, so such a title stays in one piece.
std::vector<Piece> piecesOf(const QString& text, const Face& face) {
    const auto letters = text.toUcs4();
    if (std::any_of(letters.begin(), letters.end(), [](char32_t c) {
            return QChar::direction(c) == QChar::DirR || QChar::direction(c) == QChar::DirAL;
        }))
        return {{text, false}};
    std::vector<Piece> pieces;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype from = 0, to; (to = finder.toNextBoundary()) > from; from = to) {
        const QString letter = text.mid(from, to - from);
        const auto parts = letter.toUcs4();
        const bool own = parts.size() == 1 && face.has(parts.front());  // marks over a letter need composing
        if (pieces.empty() || pieces.back().own != own) pieces.push_back({"", own});
        pieces.back().text += letter;
    }
    return pieces;
}

Title laidOut(const QString& text, int size, bool shapes) {
    Title title{text, size, shapes, 0, {}, {}, {}};
    title.outline.setFillRule(Qt::WindingFill);
    title.ownLetters.setFillRule(Qt::WindingFill);
    const Face face(Weight::bold);
    for (Piece& piece : piecesOf(text.normalized(QString::NormalizationForm_C), face)) {
        if (!piece.own) {
            piece.left = title.width;
            title.outline.addText(piece.left, 0, desktopFont(size), piece.text);
            title.width += QFontMetricsF(desktopFont(size)).horizontalAdvance(piece.text);
            title.foreign.push_back(std::move(piece));
            continue;
        }
        for (const Glyph& glyph : face.glyphs(piece.text)) {
            const QPainterPath letter = shapes ? scaled(glyph.outline, size) : sharpened(glyph.outline, size);
            title.ownLetters.addPath(letter.translated(title.width, 0));
            title.width += glyph.advance * size;
        }
    }
    title.outline.addPath(title.ownLetters);
    return title;
}

// The title drawn last is kept: it is the same in every frame.
const Title& keptTitle(const QString& text, int size, bool shapes) {
    static thread_local Title kept;
    if (kept.text != text || kept.size != size || kept.shapes != shapes) kept = laidOut(text, size, shapes);
    return kept;
}

}  // namespace

void drawTitle(const Canvas& canvas, const Editor& ed, std::int32_t inkColor) {
    constexpr qsizetype longest = 1000;  // letters; far more than a scene is wide
    const QString text = QString::fromStdString(ed.ProjectTitle).left(longest);
    const int size = scenePixels(canvas.ratio, 16);
    const Title& title = keptTitle(text, size, canvas.shapes);
    const QColor ink = colourOf(legibleInk(inkColor, ed.BackColor));

    QPainter& painter = canvas.painter;
    painter.save();
    painter.translate(std::round((canvas.pixels(ed.sceneWidth) - title.width) / 2),
                      std::round(canvas.pixels(250) + std::ceil(Face::ascent * size)));
    strokeHalo(painter, title.outline, size, colourOf(ed.BackColor));
    // Shapes read alike whatever fonts there are where they are shown.
    fillLetters(painter, canvas.shapes ? title.outline : title.ownLetters, ink);
    if (!canvas.shapes && !title.foreign.empty()) {
        painter.setFont(desktopFont(size));
        painter.setPen(ink);
        for (const Piece& piece : title.foreign) painter.drawText(QPointF(piece.left, 0), piece.text);
    }
    painter.restore();
}

}  // namespace zentrik
