// What a turning hub drives.

#include "model/store.h"
#include "zoo/creatures.h"
#include "zoo/kit.h"
#include "zoo/zoo.h"

namespace zentrik::zoo {

namespace {

// Held in its line by two long links.
std::int32_t crosshead(Editor& ed, double x, double y) {
    const std::int32_t head = ball(ed, x, y, stone, 2);
    join(ed, pin(ed, x, 480), head, 0.7F);
    join(ed, head, pin(ed, x, 2920), 0.7F);
    return head;
}

}  // namespace

Editor engine() {
    Editor ed = project("A hub that turns (R of a node) drives rods, pistons and a second wheel",
                        {.gravity = 0, .viscosity = 0.25F});
    const double y = 1700;
    const Numbers crank = spokedWheel(ed, 1800, y, 700, coral, 8);
    const Numbers flywheel = spokedWheel(ed, 12300, y, 1150, navy, 0);
    const std::int32_t left = crosshead(ed, 5600, y), right = crosshead(ed, 8600, y);
    join(ed, crank[4], left, 20);
    join(ed, left, right, 20);
    join(ed, right, flywheel[4], 20);
    return ed;
}

}  // namespace zentrik::zoo
