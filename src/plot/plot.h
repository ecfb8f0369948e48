#pragma once
// Paints a plot: axes and grid, curves, what is said of them, and where the scene is. The painter's unit is
// one device pixel; letters are the scene's, so that a plot is the same picture on every machine.

#include "plot/frame.h"

#include <QColor>
#include <QPainter>

namespace zentrik {

QColor paperOf(bool dark);

// All of it over the whole picture, in device-independent pixels.
void drawPlot(QPainter& painter, const Plot& plot, QSize size);

// Its parts, for who keeps some of them.
void drawGround(QPainter& painter, const Plot& plot, const PlotFrame& frame);
// From a span on.
void drawCurves(QPainter& painter, const Plot& plot, const PlotFrame& frame, std::size_t from = 0);
// A line through the step at which the scene is, and one through that which is pointed at; dots where it is
// not against time.
void drawSteps(QPainter& painter, const Plot& plot, const PlotFrame& frame);

}  // namespace zentrik
