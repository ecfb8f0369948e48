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

// Goes from the first value of one column of pixels to that of the next, and on its way to the least and the
// greatest of the spans between them, where these lie farther out.
class CurveLine {
public:
    CurveLine(const Plot& plot, const PlotFrame& frame, const Panel& panel, std::size_t curve)
        : byTime_(plot.against == 0),
          frame_(frame),
          panel_(panel),
          xs_(plot.series.of(plot.against)),
          ys_(plot.series.of(curve)) {}

    void draw(QPainter& painter, Spans spans) {
        for (std::size_t i = spans.from; i < spans.to; ++i) {
            const double x = frame_.place(xs_[i].first), y = ys_[i].first;
            if (std::isnan(x) || std::isnan(y)) {
                end(painter);
                continue;
            }
            if (!byTime_ || points_.isEmpty() || std::fabs(x - points_.last().x()) >= 1) {
                goOut(y);
                points_.append({x, panel_.place(y)});
                column_ = ys_[i];
            }
            column_.least = std::fmin(column_.least, ys_[i].least);
            column_.greatest = std::fmax(column_.greatest, ys_[i].greatest);
            last_ = y;
        }
        end(painter);
    }

private:
    const bool byTime_;
    const PlotFrame& frame_;
    const Panel& panel_;
    const std::vector<Span>&xs_, &ys_;
    QPolygonF points_;
    Span column_{};  // since the last point
    double last_ = 0;

    // next: the value to which it goes on.
    void goOut(double next) {
        if (points_.isEmpty() || !byTime_) return;
        const double x = points_.last().x();
        for (const double far : {column_.least, column_.greatest})
            if (far < std::min(column_.first, next) || far > std::max(column_.first, next))
                points_ << QPointF(x, panel_.place(far)) << QPointF(x, panel_.place(last_));
    }
    void end(QPainter& painter) {
        goOut(last_);
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
