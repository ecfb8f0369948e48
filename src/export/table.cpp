#include "export/table.h"

#include "files/write_file.h"
#include "measure/run_table.h"
#include "sim/model_run.h"

namespace zentrik {

std::string runTable(Editor& ed, std::int64_t steps, std::string& text,
                     const std::function<bool(std::int64_t step)>& grown) {
    const TableColumns columns = selectedColumns(ed);
    text += tableHeader(columns);
    appendTableRow(text, ed, 0, columns);
    if (!ed.buttons.start) beginRun(ed);
    for (std::int64_t step = 1; step <= steps; ++step) {
        if (!stepRun(ed)) return whyStopped(ed);
        appendTableRow(text, ed, step, columns);
        if (!grown(step)) break;
    }
    return {};
}

FilmResult makeTable(const Editor& ed, std::int64_t steps, const std::string& path,
                     const FilmProgress& goOn) {
    Editor model = ed;
    std::string text;
    FilmResult result;
    result.stopped = runTable(model, steps, text, [&](std::int64_t step) {
        result.cancelled = !goOn({static_cast<double>(step) / static_cast<double>(steps)});
        return !result.cancelled;
    });
    if (!result.cancelled) result.problem = writeFile(path, text);
    return result;
}

}  // namespace zentrik
