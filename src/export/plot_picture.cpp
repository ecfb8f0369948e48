#include "export/plot_picture.h"

#include "files/write_file.h"
#include "measure/run_table.h"
#include "plot/plot.h"

namespace zentrik {

Drawing drawingOf(const Plot& plot, QSize size, const QString& title) {
    return {size, title, paperOf(plot.dark),
            [plot, size](QPainter& painter) { drawPlot(painter, plot, size); }};
}

FilmResult makeCurveTable(const RecordedRun& run, Stretch stretch, const std::vector<Curve>& curves,
                          const std::string& path, const FilmProgress& goOn) {
    FilmResult result;
    std::string text = tableHeader(curves);
    const auto steps = static_cast<double>(std::max<std::int64_t>(stretch.end - stretch.begin, 1));
    goThrough(run, stretch.begin, stretch.end, [&](const Editor& ed, std::int64_t step) {
        appendTableRow(text, ed, step - stretch.begin, curves);
        result.cancelled = !goOn({static_cast<double>(step - stretch.begin) / steps});
        return !result.cancelled;
    });
    if (!result.cancelled) result.problem = writeFile(path, text);
    return result;
}

}  // namespace zentrik
