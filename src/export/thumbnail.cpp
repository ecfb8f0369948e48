#include "export/thumbnail.h"

#include "basics/numbers.h"
#include "basics/units.h"
#include "model/store.h"

#include <algorithm>

namespace zentrik {

namespace {

struct Extent {
    double low = 1e12, high = -1e12;

    void add(double value) { low = std::min(low, value), high = std::max(high, value); }
    double size() const { return std::max(high - low, 0.0); }
};

void hideTexts(Editor& ed) {
    ed.buttons.grid = ed.buttons.numbers = ed.buttons.data = ed.buttons.simple = false;
    ed.marks.mnuDisplayTitle = ed.instructionsShown = false;
}

}  // namespace

double fitThumbnail(Subject& subject, int side) {
    constexpr double mostEnlarged = 2;
    Editor& ed = subject.ed;
    hideTexts(ed);
    Extent across, down;
    forEachNode(ed, [&](std::int32_t, const Node& node) { across.add(node.X), down.add(node.Y); });
    const double margin = 2.0 * ed.NodeRadius + twipsPerPixel;  // barrels and pens reach beyond the places
    forEachNode(ed, [&](std::int32_t, Node& node) {
        node.X = toInt(node.X - across.low + margin);
        node.Y = toInt(node.Y - down.low + margin);
    });
    ed.sceneWidth = toInt(across.size() + 2 * margin);
    ed.sceneHeight = toInt(down.size() + 2 * margin);
    const QSize size = sceneSize(ed);
    return std::min(mostEnlarged, static_cast<double>(side) / std::max(size.width(), size.height()));
}

}  // namespace zentrik
