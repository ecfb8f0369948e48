#include "scenes/contacts.h"

#include "model/store.h"
#include "scenes/scenes.h"

#include <cmath>

namespace zentrik::scenes {

namespace {

constexpr int wall = 60;  // the standard node's radius: where its centre stops

Editor weightless() {
    Editor ed = fullScreen();
    ed.Gravity = 0;
    ed.marks.mnuWalls = true;
    ed.marks.mnuIgnoreBarriers = true;
    return ed;
}

}  // namespace

Editor latticeAtWall(int nodes) {
    Editor ed = weightless();
    const int side = static_cast<int>(std::lround(std::sqrt(nodes)));
    addLattice(ed, side, side, std::max(10, 14000 / side), wall, 500);
    return ed;
}

Editor looseAtWall(int nodes) {
    Editor ed = weightless();
    for (int i = 0; i < nodes; ++i) addNode(ed, wall, 500 + i % 1000 * 15);
    return ed;
}

Editor chainAlongWall(int nodes) {
    Editor ed = looseAtWall(nodes);
    for (std::int32_t i = 2; i <= nodes; ++i) addLink(ed, i - 1, i);
    return ed;
}

Editor freeBarriers(int nodes, int barriers) {
    Editor ed = weightless();
    ed.marks.mnuIgnoreBarriers = false;
    for (std::int32_t i = 0; i < nodes; ++i) addNode(ed, 200 + i / 100 * 250, 200 + i % 100 * 150);
    for (std::int32_t j = 0; j < barriers; ++j) linkAt(ed, addLink(ed, 2 * j + 1, 2 * j + 2)).Barrier = true;
    return ed;
}

}  // namespace zentrik::scenes
