#pragma once
// A pointer that moves over the drawings and drags nothing changes little of what they show. Most of its
// moves change nothing at all.

#include "model/editor.h"

#include <array>

namespace zentrik {

class Pointing {
public:
    // Before the move.
    explicit Pointing(const Editor& ed) : before_(shownIn(ed)) {}
    // After it: takes back that a drawing is stale where it looks as before, or has only the scene's marks
    // painted. For drawings which show the record as it was before the move; others stay stale.
    void end(Editor& ed, bool sceneIsCurrent, bool phaseIsCurrent) const;

private:
    struct Shown {
        bool sceneBlank, instructions;
        std::array<std::int32_t, 4> marks;
        std::optional<PointF> rubberBand;
        std::array<std::int32_t, 2> discs;
        float phaseShift;
    };
    Shown before_;

    static Shown shownIn(const Editor& ed);
};

}  // namespace zentrik
