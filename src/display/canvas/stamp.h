#pragma once
// Filled circles and squares with an outline, drawn by the ten thousand. A shape is drawn once, as a
// picture of weights (how much fill and how much outline each pixel holds), and coloured from there. The
// pictures of some colours are kept; colouring one costs a few times as much as stamping it, so even a
// random colour for every node and frame stays bearable, and no pictures pile up.

#include "display/canvas/canvas.h"

#include <QImage>
#include <array>
#include <vector>

namespace zentrik {

enum class Shape { circle, square };

// Draws one shape without a stamp; the stamps look the same. All lengths in device pixels; the outline
// lies astride the radius (a square's half-side).
void drawShape(QPainter& painter, Shape shape, QPointF centre, double radius, int outlineWidth, QColor fill,
               QColor outline);

class Stamp {
public:
    // Radius in twips; below 0 counts as 0.
    Stamp(const Canvas& canvas, Shape shape, double radius);

    // Centre in twips. Shapes outside the frame cost nothing.
    void paint(double x, double y, std::int32_t fill, std::int32_t outline);

private:
    struct Coloured {
        std::int32_t fill = 0, outline = 0;
        QImage image;
        std::vector<Tile> tiles;  // of it, for where pixels can be reached
    };

    void makeWeights();
    const Coloured& picture(std::int32_t fill, std::int32_t outline);
    void colour(Coloured& to) const;

    const Canvas& canvas_;
    const Shape shape_;
    const double radius_;  // device pixels
    const int reach_;      // from the centre to beyond the outline, device pixels
    QImage weights_;       // red: fill, green: outline, alpha: coverage
    std::array<Coloured, 64> kept_;
};

}  // namespace zentrik
