#include "scenes/scenes.h"

#include "model/store.h"

#include <cmath>

namespace zentrik::scenes {

std::int32_t addNode(Editor& ed, std::int32_t x, std::int32_t y) {
    Node node;
    node.Used = true;
    node.X = x;
    node.Y = y;
    node.Mass = 1;
    node.Trigger = none;
    node.Sprite = noSprite;
    node.color = ed.NodeColor;
    return appendNode(ed, node);
}

std::int32_t addLink(Editor& ed, std::int32_t n1, std::int32_t n2, float k) {
    Link link = defaultLink(ed, n1, n2);
    link.k = k;
    link.RestLength = link.CurrentLength = linkLength(ed, link);
    return appendLink(ed, link);
}

void addNodes(Editor& ed, Pairs places) {
    for (const auto& [x, y] : places) addNode(ed, x, y);
}

void addLinks(Editor& ed, Pairs ends) {
    for (const auto& [a, b] : ends) addLink(ed, a, b);
}

void addLattice(Editor& ed, int columns, int rows, int spacing, int left, int top) {
    const std::int32_t first = lastNode(ed) + 1;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            addNode(ed, left + column * spacing, top + row * spacing);
    const auto at = [&](int column, int row) { return first + row * columns + column; };
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            const bool right = column + 1 < columns;
            const bool below = row + 1 < rows;
            if (right) addLink(ed, at(column, row), at(column + 1, row));
            if (below) addLink(ed, at(column, row), at(column, row + 1));
            if (right && below) addLink(ed, at(column, row), at(column + 1, row + 1));
            if (right && below) addLink(ed, at(column + 1, row), at(column, row + 1));
        }
}

Editor fullScreen() {
    Editor ed;
    ed.sceneWidth = 1920 * 15;
    ed.sceneHeight = 1080 * 15;
    return ed;
}

Editor latticeOf(int nodes) {
    Editor ed = fullScreen();
    const int columns = static_cast<int>(std::lround(std::sqrt(nodes)));
    const int spacing = std::max(10, 14000 / columns);
    addLattice(ed, columns, nodes / columns, spacing, 2000, 500);
    return ed;
}

}  // namespace zentrik::scenes
