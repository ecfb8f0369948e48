#pragma once
// What display/ draws, as numbers for a page's script, in the order of drawing. Places are twips.

#include "model/editor.h"

#include <vector>

namespace zentrik {

enum class LivePen { plain, selected, barrier };
struct LiveLink {
    float x1, y1, x2, y2;
    float pen;       // a LivePen
    float animated;  // 0 or 1
    float number;
};

enum class LiveShape { circle, square, shooter, centre };
struct LiveDisc {
    float x, y;
    float shape;  // a LiveShape
    float fill, outline;
};

struct LiveNode {
    float x, y;
    float sprite;  // its place in the list of sprites; 0 for none
    float number;
};

struct LivePicture {
    std::vector<LiveLink> links;
    std::vector<LiveDisc> nodes;  // with barrels and gravity dots
    std::vector<LiveDisc> marks;  // of selection and hovering
    std::vector<LiveNode> labels;
};

// In place of what the picture held.
void describe(LivePicture& picture, const Editor& ed);

}  // namespace zentrik
