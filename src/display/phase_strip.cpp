#include "display/phase_strip.h"

#include "basics/angles.h"
#include "display/canvas/lettering.h"
#include "display/canvas/stamp.h"
#include "model/phase_axis.h"
#include "model/store.h"

#include <QPolygonF>

namespace zentrik {

namespace {

// The same in light and dark desktops, so that discs and numbers read alike everywhere.
constexpr std::int32_t paper = 0xFBF8F6, axisInk = 0x6B5A4F, gridInk = 0xD9CFC8, labelInk = 0x4A3B32;
constexpr double discRadius = 60;  // twips

void verticalLine(const Canvas& canvas, double x, double top, int width, std::int32_t colour) {
    const int thick = canvas.lineWidth(width);
    const int middle = static_cast<int>(std::floor(canvas.place(x, 0).x()));
    const int from = static_cast<int>(std::lround(canvas.pixels(top)));
    canvas.painter.fillRect(middle - thick / 2, from, thick, canvas.frame.height() - from, colourOf(colour));
}

void drawAxis(const Canvas& canvas, double unit) {
    Lettering& letters = lettering(canvas.ratio, labelInk, paper);
    for (const int end : {1, 9}) verticalLine(canvas, end * unit, 0, 4, axisInk);
    for (int i = 1; i <= 8; ++i) {
        if (i > 1) verticalLine(canvas, i * unit, 200, 1, gridInk);
        const std::string label = i == 1 ? "00" : std::to_string((i - 1) * 45);
        letters.print(canvas.painter, {canvas.pixels(i * unit) - letters.width(label) / 2, 0}, label);
    }
}

bool hasDisc(const Editor& ed, std::int32_t j) {
    return linkExists(ed, j) && linkAt(ed, j).Used && linkAt(ed, j).Animator && endsExist(ed, linkAt(ed, j));
}

void drawDiscs(const Canvas& canvas, const Editor& ed) {
    Stamp disc(canvas, Shape::circle, discRadius);
    Lettering& letters = lettering(canvas.ratio, black, paper);
    for (std::int32_t j = 1; j <= lastLink(ed); ++j) {
        if (!hasDisc(ed, j)) continue;
        const Link& link = linkAt(ed, j);
        disc.paint(link.DiscX, link.DiscY, ed.NodeColor, black);
        if (link.DiscY > ed.phaseHeight) continue;
        letters.print(canvas.painter, canvas.place(link.DiscX, link.DiscY), " " + std::to_string(j));
    }
    // A link that is no longer animated still answers the pointer where its disc was last.
    const auto again = [&](std::int32_t j, std::int32_t fill) {
        if (!linkExists(ed, j) || !linkAt(ed, j).Used) return;
        disc.paint(linkAt(ed, j).DiscX, linkAt(ed, j).DiscY, fill, black);
    };
    again(ed.SelectedAnimatorLink, blue);
    again(ed.PhaseOverLink, white);
}

// A point a degree; a faint line joins them where the strip is wide.
void drawSineCurve(const Canvas& canvas, const Editor& ed, double unit) {
    QPolygonF points;
    for (int d = 0; d <= 360; ++d) {
        const double x = phaseAxisLength * ed.phaseWidth / 360 * (360 - d) + unit;
        const double y = (1 - std::sin(curveTurn / 360 * d + ed.phaseShift)) * (ed.phaseHeight - 60) / 2;
        points.append({canvas.pixels(x), canvas.pixels(y)});
    }
    QColor faint = colourOf(red);
    faint.setAlpha(90);
    canvas.painter.setRenderHint(QPainter::Antialiasing);
    canvas.painter.setPen(QPen(faint, canvas.ratio));
    canvas.painter.drawPolyline(points);
    canvas.painter.setPen(QPen(colourOf(red), 1.75 * canvas.ratio, Qt::SolidLine, Qt::RoundCap));
    canvas.painter.drawPoints(points);
    canvas.painter.setRenderHint(QPainter::Antialiasing, false);
}

}  // namespace

void drawPhaseStrip(QPainter& painter, const Editor& ed) {
    const Canvas canvas(painter, ed.phaseWidth, ed.phaseHeight);
    const double unit = phaseAxisLeft * ed.phaseWidth;
    painter.fillRect(canvas.frame, colourOf(paper));
    drawAxis(canvas, unit);
    drawDiscs(canvas, ed);
    drawSineCurve(canvas, ed, unit);
}

}  // namespace zentrik
