#include "display/lines.h"

#include "basics/numbers.h"
#include "display/canvas/stamp.h"
#include "model/store.h"

#include <QLineF>
#include <QList>
#include <algorithm>
#include <optional>
#include <vector>

namespace zentrik {

namespace {

// Wide lines are antialiased only up to this many links: beyond, they alone would take a whole tick.
// Lines one device pixel wide are cheap enough to be smooth always.
constexpr std::size_t smoothWideLinks = 5000;

// The part of the line from a to b inside the frame (Liang and Barsky, 1984), if any.
std::optional<QLineF> visiblePart(QPointF a, QPointF b, const QRectF& frame) {
    if (frame.contains(a) && frame.contains(b)) return QLineF(a, b);
    const QPointF d = b - a;
    double enter = 0, leave = 1;
    const auto cut = [&](double step, double room) {
        if (step == 0) return room >= 0;
        if (step > 0) leave = std::min(leave, room / step);
        if (step < 0) enter = std::max(enter, room / step);
        return enter <= leave;
    };
    if (cut(-d.x(), a.x() - frame.left()) && cut(d.x(), frame.right() - a.x()) &&
        cut(-d.y(), a.y() - frame.top()) && cut(d.y(), frame.bottom() - a.y()))
        return QLineF(a + enter * d, a + leave * d);
    return {};
}

// Lines in the order in which they are added. Those one pixel wide go straight into the picture; others are
// gathered for as long as the pen stays the same.
class LineRuns {
public:
    LineRuns(const Canvas& canvas, std::size_t links)
        : canvas_(canvas), smoothWide_(links <= smoothWideLinks), room_(canvas.frame) {
        const double margin = 16 * canvas.ratio;  // more than the widest pen
        room_.adjust(-margin, -margin, margin, margin);
    }
    ~LineRuns() { flush(); }
    LineRuns(const LineRuns&) = delete;
    LineRuns& operator=(const LineRuns&) = delete;

    // Colour and width (device-independent pixels) of the lines to come.
    void pen(std::int32_t colour, int width) {
        if (colour == colour_ && width == width_) return;
        flush();
        colour_ = colour;
        width_ = width;
        rgb_ = colourOf(colour).rgb();
        isThin_ = canvas_.lineWidth(width) == 1 && canvas_.bitmap;
    }
    void add(const Node& from, double x, double y) {
        if (isThin_) return canvas_.bitmap->line(canvas_.pixel(from.X, from.Y), canvas_.pixel(x, y), rgb_);
        if (const auto line = visiblePart(canvas_.place(from.X, from.Y), canvas_.place(x, y), room_))
            lines_.append(*line);
    }
    // Where isThin().
    void add(Pixel from, Pixel to) { canvas_.bitmap->line(from, to, rgb_); }
    bool isThin() const { return isThin_; }
    void add(const Node& from, const Node& to) { add(from, to.X, to.Y); }

private:
    void flush() {
        if (lines_.isEmpty()) return;
        const int width = canvas_.lineWidth(width_);
        QPen pen(colourOf(colour_), width);
        pen.setCapStyle(width_ > 1 ? Qt::SquareCap : Qt::FlatCap);
        canvas_.painter.setPen(pen);
        canvas_.painter.setRenderHint(QPainter::Antialiasing, width == 1 || smoothWide_);
        // An even width is sharp around a border between pixels, an odd one around a pixel's middle.
        const double shift = canvas_.shapes || (width - canvas_.thinWidth) % 2 == 0 ? 0 : -0.5;
        canvas_.painter.translate(shift, shift);
        canvas_.painter.drawLines(lines_);
        canvas_.painter.translate(-shift, -shift);
        canvas_.painter.setRenderHint(QPainter::Antialiasing, false);
        lines_.clear();
    }

    const Canvas& canvas_;
    const bool smoothWide_;
    QRectF room_;
    QList<QLineF> lines_;
    std::int32_t colour_ = black;
    int width_ = 0;
    QRgb rgb_ = 0;
    bool isThin_ = false;
};

void drawDots(const Canvas& canvas, const Editor& ed, std::int64_t step, double radius) {
    Stamp dot(canvas, Shape::circle, radius);
    for (std::int64_t y = step; y <= ed.sceneHeight; y += step)
        for (std::int64_t x = step; x <= ed.sceneWidth; x += step)
            dot.paint(static_cast<double>(x), static_cast<double>(y), gridGrey, gridGrey);
}

}  // namespace

// All rows of the grid are alike: one is stamped dot by dot, the others are copies of it, so that even
// the narrowest grid is drawn at once.
void DisplayGrid(const Canvas& canvas, const Editor& ed) {
    const std::int64_t step = toInt(ed.GridSize);
    if (!ed.buttons.grid || step < 1 || step > ed.sceneWidth || step > ed.sceneHeight) return;
    const double radius = std::clamp<double>(ed.GridRadius, 0, static_cast<double>(step));
    if (canvas.shapes) return drawDots(canvas, ed, step, radius);
    const int reach = static_cast<int>(std::ceil(canvas.pixels(radius))) + canvas.thinWidth;
    QImage row(canvas.frame.width(), 2 * reach + 1, QImage::Format_ARGB32_Premultiplied);
    row.setDevicePixelRatio(canvas.ratio);
    row.fill(Qt::transparent);
    {
        QPainter painter(&row);
        const Canvas strip(painter, ed.sceneWidth, ed.sceneHeight);
        Stamp dot(strip, Shape::circle, radius);
        for (std::int64_t x = step; x <= ed.sceneWidth; x += step)
            dot.paint(static_cast<double>(x), reach / canvas.pixels(1), gridGrey, gridGrey);
    }
    row.setDevicePixelRatio(1);
    for (std::int64_t y = step; y <= ed.sceneHeight; y += step)
        canvas.painter.drawImage(
            QPoint(0, static_cast<int>(canvas.place(0, static_cast<double>(y)).y()) - reach), row);
}

void drawLinks(const Canvas& canvas, const Editor& ed) {
    LineRuns lines(canvas, ed.Links.size());
    std::vector<Pixel> pixels(ed.Nodes.size());  // side by side: a model of 100,000 nodes outgrows the caches
    for (std::size_t i = 1; i < pixels.size(); ++i) pixels[i] = canvas.pixel(ed.Nodes[i].X, ed.Nodes[i].Y);
    forEachLink(ed, [&](std::int32_t j, const Link& link) {
        if (j == ed.SelectedLink)
            lines.pen(blue, 1);
        else if (link.Barrier)
            lines.pen(red, 4);
        else
            lines.pen(ed.LinkColor, 1);
        if (lines.isThin())
            lines.add(pixels[static_cast<std::size_t>(link.N1)], pixels[static_cast<std::size_t>(link.N2)]);
        else
            lines.add(nodeAt(ed, link.N1), nodeAt(ed, link.N2));
    });
}

void drawAnimatedLinks(const Canvas& canvas, const Editor& ed) {
    LineRuns lines(canvas, ed.Links.size());
    lines.pen(blue, 2);
    forEachLink(ed, [&](std::int32_t, const Link& link) {
        if (link.Animator) lines.add(nodeAt(ed, link.N1), nodeAt(ed, link.N2));
    });
}

void drawRubberBand(const Canvas& canvas, const Editor& ed) {
    const Node* from = selectedNode(ed);
    if (!ed.rubberBand || !from) return;
    LineRuns lines(canvas, 1);
    lines.pen(ed.LinkColor, 1);
    lines.add(*from, ed.rubberBand->x, ed.rubberBand->y);
}

}  // namespace zentrik
