#include "settings/first_run.h"

namespace zentrik {

Editor firstRun() {
    Editor ed;
    Marks& marks = ed.marks;
    marks.mnuUseDirectional = marks.mnuIgnoreBarriers = marks.mnuReverseModel = true;
    marks.mnuWalls = marks.mnuCeiling = marks.mnuAutoResume = true;
    ed.buttons.animation = ed.buttons.simple = true;
    return ed;
}

}  // namespace zentrik
