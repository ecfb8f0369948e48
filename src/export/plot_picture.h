#pragma once
// A plot as a picture, and the table of its curves.

#include "export/drawing.h"
#include "export/making.h"
#include "history/recorded_run.h"
#include "plot/plot.h"

#include <string>

namespace zentrik {

// Size in device-independent pixels. The plot's series must live as long.
Drawing drawingOf(const Plot& plot, QSize size, const QString& title);

// The table of some curves over a stretch of a run, a row a step, into a file, wholly or not at all. Any
// thread may call it.
FilmResult makeCurveTable(const RecordedRun& run, Stretch stretch, const std::vector<Curve>& curves,
                          const std::string& path, const FilmProgress& goOn);

}  // namespace zentrik
