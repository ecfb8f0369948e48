#pragma once
#include "model/editor.h"

namespace zentrik {

// The record as a program starts with that has no settings yet.
inline Editor firstRun() {
    Editor ed;
    Marks& marks = ed.marks;
    marks.mnuUseDirectional = marks.mnuIgnoreBarriers = marks.mnuReverseModel = true;
    marks.mnuWalls = marks.mnuCeiling = marks.mnuAutoResume = true;
    ed.buttons.animation = ed.buttons.simple = true;
    return ed;
}

}  // namespace zentrik
