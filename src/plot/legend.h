#pragma once
// What a plot's legend says.

#include "plot/frame.h"

#include <QPainter>
#include <string>
#include <vector>

namespace zentrik {

// Of a curve: its name with the value at the step that is pointed at, or at which the scene is; then what the
// shown part comes to: "least 1  greatest 3", "mean 2", and of an oscillation "period 0.5  frequency 2".
std::vector<std::string> legendLines(const Plot& plot, std::size_t curve);

void drawLegend(QPainter& painter, const Plot& plot, const PlotFrame& frame);

}  // namespace zentrik
