#pragma once
// The face of everything that is lettered into a scene. The program carries its files, and only their
// outlines are used, so that a scene reads, measures and looks alike on every machine, whatever fonts and
// font settings it has.

#include <QPainterPath>
#include <QRawFont>
#include <QString>
#include <vector>

namespace zentrik {

enum class Weight { regular, bold };

// A unit is the font's size; the left end of the baseline is at (0, 0).
struct Glyph {
    QPainterPath outline;  // empty for a blank
    double advance = 0;    // to the next letter
};

// A face that has been opened: cheap to make (some tenths of a millisecond), not for keeping. Needs a
// QGuiApplication.
class Face {
public:
    explicit Face(Weight weight);

    bool has(char32_t character) const;
    // The letters of a text, kerned. What the face lacks becomes an empty box.
    std::vector<Glyph> glyphs(const QString& text) const;

    // What a line takes above and below its baseline; a unit is the font's size.
    static constexpr double ascent = 1854 / 2048.0, descent = 434 / 2048.0;

private:
    QRawFont font_;
};

QPainterPath scaled(const QPainterPath& outline, double size);

// The letter at a font's size, made a little higher or lower so that it begins and ends with whole pixels: on
// a coarse screen its strokes are sharp, and its breadth, with the spacing, stays as it was drawn.
QPainterPath sharpened(const QPainterPath& outline, double size);

}  // namespace zentrik
