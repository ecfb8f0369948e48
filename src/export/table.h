#pragma once
// The table of a run as a file, a row a step.

#include "export/making.h"
#include "model/editor.h"

#include <cstdint>
#include <functional>
#include <string>

namespace zentrik {

// Presses the start button, unless the animation runs, and makes so many steps; appends the table of the
// selected node and link, or of all, to a text, which grown may take. Gives why the run ended early, in
// words. Ends when grown says false.
std::string runTable(Editor& ed, std::int64_t steps, std::string& text,
                     const std::function<bool(std::int64_t step)>& grown);

// The same with a copy of the model, into a file, wholly or not at all. Any thread may call it.
FilmResult makeTable(const Editor& ed, std::int64_t steps, const std::string& path, const FilmProgress& goOn);

}  // namespace zentrik
