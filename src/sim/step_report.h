#pragma once
#include "model/editor.h"

#include <optional>
#include <string>

namespace zentrik {

// What a step leaves to be shown.
struct StepReport {
    std::string problem;         // why the step was taken back: the node and the reason; empty if it worked
    std::optional<float> clock;  // where it took the clock; none for a step that was not begun
    std::optional<float> distance;  // twips between the last free node and the barrier measured last
    std::optional<PathDot> dot;     // of the selected node's track, if that is shown
    bool anyRemoved = false;        // the floor took a node out of the model
};

}  // namespace zentrik
