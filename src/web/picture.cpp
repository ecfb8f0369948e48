#include "web/picture.h"

#include "basics/colours.h"
#include "model/shooter_aim.h"
#include "model/store.h"

#include <cmath>

namespace zentrik {

namespace {

LiveDisc disc(double x, double y, LiveShape shape, std::int32_t fill, std::int32_t outline) {
    return {static_cast<float>(x), static_cast<float>(y), static_cast<float>(shape),
            static_cast<float>(fill & 0xFFFFFF), static_cast<float>(outline)};
}

void addGravityDot(std::vector<LiveDisc>& discs, const Node& node) {
    if (node.Gravity != 0) discs.push_back(disc(node.X, node.Y, LiveShape::centre, yellow, yellow));
}

// On the side away from the trigger.
void addBarrel(std::vector<LiveDisc>& discs, const Editor& ed, const Node& shooter) {
    const double angle = barrelAngle(ed, shooter), length = 1.5 * ed.NodeRadius;
    discs.push_back(disc(shooter.X + length * std::cos(angle), shooter.Y - length * std::sin(angle),
                         LiveShape::circle, green, red));
}

void addNode(std::vector<LiveDisc>& discs, const Editor& ed, const Node& node) {
    const LiveShape shape = !node.Locked           ? LiveShape::circle
                            : node.Trigger == none ? LiveShape::square
                                                   : LiveShape::shooter;
    discs.push_back(disc(node.X, node.Y, shape, node.color, black));
    if (shape == LiveShape::shooter && nodeExists(ed, node.Trigger)) addBarrel(discs, ed, node);
    addGravityDot(discs, node);
}

void addMarks(std::vector<LiveDisc>& discs, const Editor& ed) {
    if (nodeExists(ed, ed.SelectedNode)) {
        const Node& node = nodeAt(ed, ed.SelectedNode);
        discs.push_back(
            disc(node.X, node.Y, node.Locked ? LiveShape::square : LiveShape::circle, red, black));
        addGravityDot(discs, node);
    }
    if (nodeExists(ed, ed.HoverNode)) {
        const Node& node = nodeAt(ed, ed.HoverNode);
        discs.push_back(disc(node.X, node.Y, LiveShape::circle, white, black));
    }
    const auto markLink = [&](std::int32_t j, std::int32_t fill, std::int32_t outline) {
        if (!linkExists(ed, j) || !endsExist(ed, linkAt(ed, j))) return;
        const PointF middle = linkMidpoint(ed, linkAt(ed, j));
        discs.push_back(disc(middle.x, middle.y, LiveShape::circle, fill, outline));
    };
    markLink(ed.SelectedLink, blue, blue);
    markLink(ed.HoverLink, white, black);
}

}  // namespace

void describe(LivePicture& picture, const Editor& ed) {
    picture.links.clear();
    picture.nodes.clear();
    picture.marks.clear();
    picture.labels.clear();
    forEachLink(ed, [&](std::int32_t j, const Link& link) {
        const Node &from = nodeAt(ed, link.N1), &to = nodeAt(ed, link.N2);
        const LivePen pen = j == ed.SelectedLink ? LivePen::selected
                            : link.Barrier       ? LivePen::barrier
                                                 : LivePen::plain;
        picture.links.push_back({static_cast<float>(from.X), static_cast<float>(from.Y),
                                 static_cast<float>(to.X), static_cast<float>(to.Y), static_cast<float>(pen),
                                 link.Animator ? 1.F : 0.F, static_cast<float>(j)});
    });
    forEachNode(ed, [&](std::int32_t i, const Node& node) {
        addNode(picture.nodes, ed, node);
        picture.labels.push_back({static_cast<float>(node.X), static_cast<float>(node.Y),
                                  static_cast<float>(node.SpriteIndex), static_cast<float>(i)});
    });
    addMarks(picture.marks, ed);
}

}  // namespace zentrik
