#include "display/nodes.h"

#include "display/canvas/stamp.h"
#include "model/shooter_aim.h"
#include "model/store.h"

namespace zentrik {

namespace {

// The stamps of one frame.
struct NodeStamps {
    NodeStamps(const Canvas& canvas, double R)
        : circle(canvas, Shape::circle, R),
          square(canvas, Shape::square, R),
          shooter(canvas, Shape::square, 1.5 * R),
          centre(canvas, Shape::circle, R / 2) {}

    Stamp circle, square, shooter, centre;

    void gravityDot(const Node& node) {
        if (node.Gravity != 0) centre.paint(node.X, node.Y, yellow, yellow);
    }
};

// On the side away from the trigger.
void drawBarrel(NodeStamps& stamps, const Editor& ed, const Node& shooter) {
    const double angle = barrelAngle(ed, shooter);
    const double length = 1.5 * ed.NodeRadius;
    stamps.circle.paint(shooter.X + length * std::cos(angle), shooter.Y - length * std::sin(angle), green,
                        red);
}

void drawNode(NodeStamps& stamps, const Editor& ed, const Node& node) {
    if (!node.Locked) {
        stamps.circle.paint(node.X, node.Y, node.color, black);
    } else if (node.Trigger == none) {
        stamps.square.paint(node.X, node.Y, node.color, black);
    } else {
        stamps.shooter.paint(node.X, node.Y, node.color, black);
        if (nodeExists(ed, node.Trigger)) drawBarrel(stamps, ed, node);
    }
    stamps.gravityDot(node);
}

}  // namespace

void drawNodes(const Canvas& canvas, const Editor& ed) {
    NodeStamps stamps(canvas, ed.NodeRadius);
    forEachNode(ed, [&](std::int32_t, const Node& node) { drawNode(stamps, ed, node); });
}

void drawMarks(const Canvas& canvas, const Editor& ed) {
    NodeStamps stamps(canvas, ed.NodeRadius);
    if (const Node* node = selectedNode(ed)) {
        (node->Locked ? stamps.square : stamps.circle).paint(node->X, node->Y, red, black);
        stamps.gravityDot(*node);
    }
    if (nodeExists(ed, ed.HoverNode)) {
        const Node& node = nodeAt(ed, ed.HoverNode);
        stamps.circle.paint(node.X, node.Y, white, black);
    }
    const auto markLink = [&](std::int32_t j, std::int32_t fill, std::int32_t outline) {
        if (!linkExists(ed, j) || !endsExist(ed, linkAt(ed, j))) return;
        const PointF middle = linkMidpoint(ed, linkAt(ed, j));
        stamps.circle.paint(middle.x, middle.y, fill, outline);
    };
    markLink(ed.SelectedLink, blue, blue);
    markLink(ed.HoverLink, white, black);
}

}  // namespace zentrik
