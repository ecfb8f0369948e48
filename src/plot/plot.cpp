#include "plot/plot.h"

#include "basics/units.h"
#include "display/canvas/canvas.h"
#include "plot/legend.h"
#include "plot/look.h"

#include <QPolygonF>
#include <cmath>

namespace zentrik {

namespace {

std::string nameWithUnit(const Curve& curve) {
    const std::string unit = curve.quantity->unit;
    return nameOf(curve) + (unit.empty() ? "" : " (" + unit + ")");
}

void drawGrid(QPainter& painter, const PlotFrame& frame, const PlotLook& look) {
    const int thin = std::max(1, static_cast<int>(std::lround(frame.ratio)));
    const auto line = [&](QRect rect, std::int32_t colour) { painter.fillRect(rect, colourOf(colour)); };
    for (const Panel& panel : frame.panels) {
        const QRect& area = panel.area;
        for (const double tick : ticksOf(panel.y))
            line({area.left(), static_cast<int>(std::lround(panel.place(tick))), area.width(), thin},
                 look.grid);
        for (const double tick : ticksOf(frame.x))
            line({static_cast<int>(std::lround(frame.place(tick))), area.top(), thin, area.height()},
                 look.grid);
        line({area.left(), area.top(), thin, area.height()}, look.ink);
        line({area.left(), area.bottom(), area.width(), thin}, look.ink);
    }
}

void nameTicks(QPainter& painter, const Plot& plot, const PlotFrame& frame, const PlotLook& look) {
    Lettering& letters = look.letters(frame.ratio);
    const double line = 15 * frame.ratio, space = 5 * frame.ratio;
    for (const Panel& panel : frame.panels) {
        for (const double tick : ticksOf(panel.y)) {
            const std::string text = numberText(tick);
            letters.print(painter,
                          {panel.area.left() - space - letters.width(text), panel.place(tick) - line / 2},
                          text);
        }
        letters.print(painter, panel.area.topLeft() + QPointF(space, 0), panel.unit);
    }
    const QRect body = frame.body();
    for (const double tick : ticksOf(frame.x)) {
        const std::string text = numberText(tick);
        letters.print(painter, {frame.place(tick) - letters.width(text) / 2, body.bottom() + space / 2},
                      text);
    }
    const std::string name = nameWithUnit(plot.series.curves()[plot.against]);
    letters.print(painter, {body.right() - letters.width(name), body.bottom() + line}, name);
}

// Where several spans fall into a column of pixels, or a span has several steps, the line goes through the
// least and the greatest as well.
class CurveLine {
public:
    CurveLine(const Plot& plot, const PlotFrame& frame, const Panel& panel, std::size_t curve)
        : plot_(plot),
          frame_(frame),
          panel_(panel),
          xs_(plot.series.of(plot.against)),
          ys_(plot.series.of(curve)) {}

    void draw(QPainter& painter, Spans spans) {
        for (std::size_t i = spans.from; i < spans.to; ++i) {
            const double x = frame_.place(xs_[i].first);
            if (std::isnan(x) || ys_[i].count == 0) {
                end(painter);
                continue;
            }
            if (plot_.against != 0 || points_.isEmpty() || std::fabs(x - points_.last().x()) >= 1) {
                flush();
                points_.append({x, panel_.place(std::isnan(ys_[i].first) ? ys_[i].least : ys_[i].first)});
                column_ = ys_[i];
            }
            last_ = ys_[i].first;
            column_ = {0, std::fmin(column_.least, ys_[i].least),
                       std::fmax(column_.greatest, ys_[i].greatest)};
        }
        end(painter);
    }

private:
    const Plot& plot_;
    const PlotFrame& frame_;
    const Panel& panel_;
    const std::vector<Span>&xs_, &ys_;
    QPolygonF points_;
    Span column_{};
    double last_ = 0;

    // Goes to the ends of the column that the last point stands in, the one that it leaves by last.
    void flush() {
        if (points_.isEmpty() || plot_.against != 0 || column_.least == column_.greatest) return;
        const double x = points_.last().x(), least = panel_.place(column_.least),
                     greatest = panel_.place(column_.greatest), last = panel_.place(last_);
        const bool falls = std::fabs(last - least) < std::fabs(last - greatest);
        points_ << QPointF(x, falls ? greatest : least) << QPointF(x, falls ? least : greatest);
        if (!std::isnan(last)) points_ << QPointF(x, last);
    }
    void end(QPainter& painter) {
        flush();
        if (points_.size() == 1) points_.append(points_.last() + QPointF(frame_.ratio, 0));
        painter.drawPolyline(points_);
        points_.clear();
    }
};

void drawDots(QPainter& painter, const Plot& plot, const PlotFrame& frame, std::size_t span,
              const QColor& ink) {
    const double radius = 3.5 * frame.ratio;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    for (const Panel& panel : frame.panels)
        for (const std::size_t c : panel.curves)
            painter.drawEllipse(QPointF(frame.place(plot.series.of(plot.against)[span].first),
                                        panel.place(plot.series.of(c)[span].first)),
                                radius, radius);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

}  // namespace

QColor paperOf(bool dark) { return colourOf(lookOf(dark).paper); }

void drawGround(QPainter& painter, const Plot& plot, const PlotFrame& frame) {
    const PlotLook& look = lookOf(plot.dark);
    painter.fillRect(QRect(QPoint(), frame.size), colourOf(look.paper));
    drawGrid(painter, frame, look);
    nameTicks(painter, plot, frame, look);
}

void drawCurves(QPainter& painter, const Plot& plot, const PlotFrame& frame, std::size_t from) {
    const Spans shown = spansShown(plot);
    // A line comes in from beyond the edge, and goes out.
    const Spans spans{std::max(from, shown.from == 0 ? 0 : shown.from - 1),
                      std::min(shown.to + 1, plot.series.size())};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    for (const Panel& panel : frame.panels) {
        painter.setClipRect(panel.area);
        for (const std::size_t c : panel.curves) {
            painter.setPen(lookOf(plot.dark).pen(c, frame.ratio));
            CurveLine(plot, frame, panel, c).draw(painter, spans);
        }
    }
    painter.restore();
}

void drawSteps(QPainter& painter, const Plot& plot, const PlotFrame& frame) {
    if (plot.series.size() == 0) return;
    const PlotLook& look = lookOf(plot.dark);
    const int thin = std::max(1, static_cast<int>(std::lround(frame.ratio)));
    const auto draw = [&](std::optional<std::int64_t> step, std::int32_t colour) {
        if (!step) return;
        const std::size_t span = plot.series.spanAt(*step);
        if (plot.against != 0) return drawDots(painter, plot, frame, span, colourOf(colour));
        const int x = static_cast<int>(std::lround(frame.place(plot.series.of(0)[span].first)));
        if (x >= frame.body().left() && x <= frame.body().right())
            painter.fillRect(x, frame.body().top(), thin, frame.body().height(), colourOf(colour));
    };
    draw(plot.pointed, look.pointed);
    draw(plot.now, look.ink);
}

void drawPlot(QPainter& painter, const Plot& plot, QSize size) {
    const Canvas canvas(painter, size.width() * twipsPerPixel, size.height() * twipsPerPixel);
    const PlotFrame frame = frameOf(plot, canvas.frame.size(), canvas.ratio);
    drawGround(painter, plot, frame);
    drawCurves(painter, plot, frame);
    drawSteps(painter, plot, frame);
    drawLegend(painter, plot, frame);
}

}  // namespace zentrik
