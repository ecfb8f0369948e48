#include "export/thumbnail.h"

#include "basics/numbers.h"
#include "basics/units.h"
#include "model/extent.h"
#include "model/store.h"

#include <algorithm>

namespace zentrik {

namespace {

void hideTexts(Editor& ed) {
    ed.buttons.grid = ed.buttons.numbers = ed.buttons.data = ed.buttons.simple = false;
    ed.marks.mnuDisplayTitle = ed.instructionsShown = false;
}

}  // namespace

double fitThumbnail(Subject& subject, QSize most) {
    constexpr double mostEnlarged = 2;
    Editor& ed = subject.ed;
    hideTexts(ed);
    const Extent extent = extentOf(ed.Nodes);
    const double margin = 2.0 * ed.NodeRadius + twipsPerPixel;  // barrels and pens reach beyond the places
    forEachNode(ed, [&](std::int32_t, Node& node) {
        node.X = toInt(static_cast<double>(node.X) - extent.left + margin);
        node.Y = toInt(static_cast<double>(node.Y) - extent.top + margin);
    });
    ed.sceneWidth = toInt(extent.width() + 2 * margin);
    ed.sceneHeight = toInt(extent.height() + 2 * margin);
    const QSize size = sceneSize(ed);
    const auto fit = [](int room, int needed) { return static_cast<double>(room) / needed; };
    return std::min({mostEnlarged, fit(most.width(), size.width()), fit(most.height(), size.height())});
}

QImage thumbnail(Subject& subject, QSize most, double ratio) {
    const double scale = fitThumbnail(subject, most) * ratio;
    subject.sprites.setRatio(scale);
    QImage image = sceneImage(subject, {scale});
    image.setDevicePixelRatio(ratio);
    return image;
}

}  // namespace zentrik
