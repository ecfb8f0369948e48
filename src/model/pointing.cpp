#include "model/pointing.h"

namespace zentrik {

Pointing::Shown Pointing::shownIn(const Editor& ed) {
    return {.sceneBlank = ed.sceneBlank,
            .instructions = ed.instructionsShown,
            .marks = {ed.SelectedNode, ed.HoverNode, ed.SelectedLink, ed.HoverLink},
            .rubberBand = ed.rubberBand,
            .discs = {ed.SelectedAnimatorLink, ed.PhaseOverLink},
            .phaseShift = ed.phaseShift};
}

void Pointing::end(Editor& ed, bool sceneIsCurrent, bool phaseIsCurrent) const {
    const Shown now = shownIn(ed);
    if (sceneIsCurrent && now.sceneBlank == before_.sceneBlank && now.instructions == before_.instructions) {
        ed.sceneStale = false;
        ed.marksStale = now.marks != before_.marks || now.rubberBand != before_.rubberBand;
    }
    if (phaseIsCurrent && now.discs == before_.discs && now.phaseShift == before_.phaseShift)
        ed.phaseStale = false;
}

}  // namespace zentrik
