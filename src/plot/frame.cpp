#include "plot/frame.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zentrik {

namespace {

// Device-independent pixels.
constexpr int left = 66, right = 14, top = 12, bottom = 34, gap = 16, legendWidth = 280, least = 40;
constexpr int perTick = 90, perLine = 45;  // between two ticks to the right, and upwards

double first(const Plot& plot, std::size_t curve, std::size_t span) {
    return plot.series.of(curve)[span].first;
}

Range rangeOf(const Plot& plot, std::size_t curve, Spans spans) {
    const bool whole = spans.from == 0 && spans.to == plot.series.size();
    const Span all = whole ? plot.series.all(curve) : spanOver(plot.series, curve, spans.from, spans.to);
    return {all.least, all.greatest};
}

Range joined(Range a, Range b) { return {std::fmin(a.from, b.from), std::fmax(a.to, b.to)}; }

// One panel a unit, in the order of the curves.
std::vector<Panel> panelsOf(const Plot& plot) {
    std::vector<Panel> panels;
    for (std::size_t c = 1; c < plot.series.curves().size(); ++c) {
        if (c == plot.against) continue;
        const std::string unit = plot.series.curves()[c].quantity->unit;
        auto panel =
            std::find_if(panels.begin(), panels.end(), [&](const Panel& p) { return p.unit == unit; });
        if (panel == panels.end()) panel = panels.insert(panel, {{}, unit, {}, {}});
        panel->curves.push_back(c);
    }
    if (panels.empty()) panels.emplace_back();
    return panels;
}

}  // namespace

double Panel::place(double value) const {
    const double part = (value - y.range.from) / (y.range.to - y.range.from);
    return area.bottom() - part * (area.height() - 1);
}

double PlotFrame::place(double value) const {
    const double part = (value - x.range.from) / (x.range.to - x.range.from);
    return body().left() + part * (body().width() - 1);
}

double PlotFrame::valueAt(double place) const {
    const double part = (place - body().left()) / (body().width() - 1);
    return x.range.from + part * (x.range.to - x.range.from);
}

QRect PlotFrame::body() const { return panels.front().area | panels.back().area; }

PlotFrame frameOf(const Plot& plot, QSize size, double ratio) {
    const auto px = [ratio](int n) { return static_cast<int>(std::lround(n * ratio)); };
    PlotFrame frame{size, ratio, {}, panelsOf(plot), {}};
    const bool narrow = size.width() < px(left + right + legendWidth + 4 * least);
    const int legend = narrow ? 0 : px(legendWidth);
    const int width = std::max(size.width() - px(left + right) - legend, px(least));
    const int count = static_cast<int>(frame.panels.size());
    const int height = (size.height() - px(top + bottom) - (count - 1) * px(gap)) / count;
    int y = px(top);
    const Spans spans = spansShown(plot);
    for (Panel& panel : frame.panels) {
        panel.area = {px(left), y, width, std::max(height, px(least) / 2)};
        y += panel.area.height() + px(gap);
        Range values{std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN()};
        for (const std::size_t c : panel.curves) values = joined(values, rangeOf(plot, c, spans));
        panel.y = roundAxisOver(values, panel.area.height() / px(perLine));
    }
    frame.legend = {px(left) + width + px(right), 0, legend, size.height()};
    const int ticks = width / px(perTick);
    frame.x = plot.shown ? axisOver(*plot.shown, ticks)
                         : roundAxisOver(rangeOf(plot, plot.against, {0, plot.series.size()}), ticks);
    return frame;
}

Spans spansShown(const Plot& plot) {
    if (!plot.shown || plot.against != 0) return {0, plot.series.size()};
    const std::vector<Span>& times = plot.series.of(0);
    const auto from = std::partition_point(times.begin(), times.end(),
                                           [&](const Span& time) { return time.first < plot.shown->from; });
    const auto to = std::partition_point(from, times.end(),
                                         [&](const Span& time) { return time.first <= plot.shown->to; });
    return {static_cast<std::size_t>(from - times.begin()), static_cast<std::size_t>(to - times.begin())};
}

std::optional<std::int64_t> stepAt(const Plot& plot, const PlotFrame& frame, QPointF place) {
    const auto distance = [&](std::size_t i) {
        const double x = frame.place(first(plot, plot.against, i)) - place.x();
        if (plot.against == 0) return std::fabs(x);
        double nearest = std::numeric_limits<double>::infinity();
        for (const Panel& panel : frame.panels)
            for (const std::size_t c : panel.curves)
                nearest = std::fmin(nearest, std::hypot(x, panel.place(first(plot, c, i)) - place.y()));
        return nearest;
    };
    double nearest = std::numeric_limits<double>::infinity();
    std::optional<std::int64_t> step;
    for (std::size_t i = 0; i < plot.series.size(); ++i)
        if (const double away = distance(i); away < nearest) nearest = away, step = plot.series.stepOf(i);
    return step;
}

}  // namespace zentrik
