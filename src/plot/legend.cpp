#include "plot/legend.h"

#include "plot/look.h"

#include <algorithm>
#include <cmath>

namespace zentrik {

namespace {

constexpr int line = 14, sample = 22;  // device-independent pixels

}  // namespace

std::vector<std::string> legendLines(const Plot& plot, std::size_t curve) {
    const RunSeries& series = plot.series;
    std::string name = nameOf(series.curves()[curve]);
    const std::optional<std::int64_t> step = plot.pointed ? plot.pointed : plot.now;
    if (step && series.size() > 0)
        if (const double value = series.of(curve)[series.spanAt(*step)].first; !std::isnan(value))
            name += " = " + numberText(value);
    std::vector<std::string> lines{std::move(name)};
    const Spans shown = spansShown(plot);
    const CurveFigures figures = figuresOf(series, curve, shown.from, shown.to);
    if (std::isnan(figures.mean)) return lines;
    lines.push_back("least " + numberText(figures.least) + "  greatest " + numberText(figures.greatest));
    lines.push_back("mean " + numberText(figures.mean));
    if (figures.period > 0)
        lines.push_back("period " + numberText(figures.period) + "  frequency " +
                        numberText(1 / figures.period));
    return lines;
}

// Of as many curves as there is room for; of all names first.
void drawLegend(QPainter& painter, const Plot& plot, const PlotFrame& frame) {
    const PlotLook& look = lookOf(plot.dark);
    painter.fillRect(frame.legend, colourOf(look.paper));
    if (frame.legend.isEmpty()) return;
    const auto px = [&](double n) { return n * frame.ratio; };
    for (const Panel& panel : frame.panels) {
        double y = panel.area.top();
        const double room = panel.area.height() / px(line) /
                            static_cast<double>(std::max<std::size_t>(1, panel.curves.size()));
        for (const std::size_t c : panel.curves) {
            if (y + px(line) > panel.area.bottom() + px(line)) break;
            painter.setPen(look.pen(c, frame.ratio));
            painter.drawLine(QPointF(frame.legend.left(), y + px(7)),
                             QPointF(frame.legend.left() + px(sample - 5), y + px(7)));
            const std::vector<std::string> lines = legendLines(plot, c);
            for (std::size_t i = 0; i < lines.size() && (i == 0 || static_cast<double>(i) < room);
                 ++i, y += px(line))
                lettering(frame.ratio, i == 0 ? look.ink : look.faint, look.paper)
                    .print(painter, {frame.legend.left() + px(sample), y}, lines[i]);
        }
    }
}

}  // namespace zentrik
