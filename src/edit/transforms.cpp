#include "edit/transforms.h"

#include "basics/angles.h"
#include "basics/numbers.h"
#include "edit/command.h"
#include "model/grid.h"
#include "model/store.h"

#include <cmath>

namespace zentrik {

namespace {

enum class Target { object, project };

Target chooseTarget(Editor& ed) {
    return ed.marks.mnuApplyChanges && markSelectedObject(ed) ? Target::object : Target::project;
}

// What bounds the target's used nodes, within the scene's own bounds as starting values.
struct Box {
    float minX, maxX, minY, maxY;
};

Box boundingBox(const Editor& ed, Target target) {
    Box box{toReal(ed.sceneWidth), 0, toReal(ed.sceneHeight), 0};
    forEachNode(ed, [&](std::int32_t, const Node& node) {
        if (target == Target::object && !node.Marked) return;
        const double X = node.X, Y = node.Y;
        if (X < box.minX) box.minX = toReal(X);
        if (X > box.maxX) box.maxX = toReal(X);
        if (Y < box.minY) box.minY = toReal(Y);
        if (Y > box.maxY) box.maxY = toReal(Y);
    });
    return box;
}

PointF centreOf(const Box& box) {
    const double minX = box.minX, minY = box.minY;
    return {toReal((box.maxX - minX) / 2 + minX), toReal((box.maxY - minY) / 2 + minY)};
}

// Calls move(node) for the object's used nodes, or for every slot of the project.
template <class Move>
void moveNodes(Editor& ed, Target target, Move move) {
    for (std::int32_t i = 1; i <= lastNode(ed); ++i) {
        Node& node = nodeAt(ed, i);
        if (target == Target::project || (node.Used && node.Marked)) move(node);
    }
}

// The target keeps its new shape instead of springing back.
void keepShape(Editor& ed, Target target) {
    for (std::int32_t j = 1; j <= lastLink(ed); ++j) {
        Link& link = linkAt(ed, j);
        if (target == Target::object && !link.Marked) continue;
        if (endsExist(ed, link)) link.RestLength = link.CurrentLength = linkLength(ed, link);
    }
}

// Calls place(node, dx, dy, centre), dx and dy being the node's offset from the target's centre.
template <class Place>
void reshape(Editor& ed, Place place) {
    const Target target = chooseTarget(ed);
    const PointF centre = centreOf(boundingBox(ed, target));
    moveNodes(ed, target, [&](Node& node) {
        const double dx = static_cast<double>(node.X) - centre.x;
        const double dy = static_cast<double>(node.Y) - centre.y;
        place(node, dx, dy, centre);
    });
    keepShape(ed, target);
}

void scale(Editor& ed, double growth) {
    reshape(ed, [growth](Node& node, double dx, double dy, PointF) {
        node.X = toInt(node.X + dx * growth);
        node.Y = toInt(node.Y + dy * growth);
    });
}

}  // namespace

void Increase(Editor& ed) { scale(ed, 0.2); }
void Decrease(Editor& ed) { scale(ed, -0.2); }

void RotateAnimation(Editor& ed) {
    const double c = std::cos(projectTurn), s = std::sin(projectTurn);
    reshape(ed, [c, s](Node& node, double dx, double dy, PointF centre) {
        node.X = toInt(dx * c - dy * s + centre.x);
        node.Y = toInt(dx * s + dy * c + centre.y);
    });
}

void CenterAnimation(Editor& ed) {
    const Target target = chooseTarget(ed);
    const Box box = boundingBox(ed, target);
    const double dx = (static_cast<double>(ed.sceneWidth) - box.maxX - box.minX) / 2;
    const double dy = (static_cast<double>(ed.sceneHeight) - box.maxY - box.minY) / 2;
    moveNodes(ed, target, [&](Node& node) {
        node.X = toInt(SnapToGrid(ed, toReal(node.X + dx)));
        node.Y = toInt(SnapToGrid(ed, toReal(node.Y + dy)));
    });
}

void moveProject(Editor& ed, int dx, int dy) {
    const bool whole = !ed.marks.mnuApplyChanges;
    if (!whole && !markSelectedObject(ed)) return;
    const double step = ed.GridSize;
    for (std::int32_t i = 1; i <= lastNode(ed); ++i) {
        Node& node = nodeAt(ed, i);
        if (!whole && !node.Marked) continue;
        node.X = toInt(node.X + dx * step);
        node.Y = toInt(node.Y + dy * step);
    }
}

}  // namespace zentrik
