#pragma once
// What a plot shows and where. Places are device pixels of the picture.

#include "measure/run_series.h"
#include "plot/axis.h"

#include <QPointF>
#include <QRect>
#include <optional>
#include <string>
#include <vector>

namespace zentrik {

struct Plot {
    const RunSeries& series;
    std::size_t against = 0;          // the series' curve that goes to the right
    std::optional<Range> shown = {};  // of that one; all of it where none
    bool dark = false;
    std::optional<std::int64_t> now = {};      // the step at which the scene is
    std::optional<std::int64_t> pointed = {};  // the step whose values are read, instead of that
};

// The curves of one unit above a common axis.
struct Panel {
    QRect area;
    std::string unit;
    std::vector<std::size_t> curves;
    Axis y;
    bool operator==(const Panel&) const = default;

    double place(double value) const;
};

struct PlotFrame {
    QSize size;
    double ratio = 1;  // device pixels to a device-independent one
    Axis x;
    std::vector<Panel> panels;  // from the top down
    QRect legend;
    bool operator==(const PlotFrame&) const = default;

    QRect body() const;  // from the first panel to the last
    double place(double value) const;
    double valueAt(double place) const;
};

// Size in device pixels.
PlotFrame frameOf(const Plot& plot, QSize size, double ratio);

// The spans that it shows, from one to before another. All of them where it is not against time.
struct Spans {
    std::size_t from, to;
};
Spans spansShown(const Plot& plot);

// The step that is shown at a place, or nearest to it. None where there is nothing.
std::optional<std::int64_t> stepAt(const Plot& plot, const PlotFrame& frame, QPointF place);

}  // namespace zentrik
