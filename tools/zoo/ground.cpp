// Exhibits that stand or move on the floor. They are built a little above it and drop; gravity is low
// and the air thick enough for the fall from the top of a large scene to end gently.

#include "model/store.h"
#include "scenes/scenes.h"
#include "zoo/creatures.h"
#include "zoo/kit.h"
#include "zoo/zoo.h"

#include <algorithm>

namespace zentrik::zoo {

Editor car() {
    Editor ed =
        project("Out for a drive",
                {.gravity = 0.29F, .friction = 0.5F, .viscosity = 0.1F, .bounce = 0.1F, .deltaAngle = 1.2F});
    const double x = 1400, y = 2300, apart = 2000;
    const Wheel back = addWheel(ed, x, y, 480, ink, 10), front = addWheel(ed, x + apart, y, 480, ink, 10);
    const Numbers sill = row(ed, x - 500, y - 650, x + apart + 600, y - 650, 6, coral);
    const Numbers belt = row(ed, x - 500, y - 1050, x + apart + 400, y - 1000, 6, coral);
    const Numbers roof = row(ed, x + 400, y - 1550, x + 1350, y - 1550, 3, sky, 0.5F);
    for (const Numbers* part : {&sill, &belt, &roof}) chain(ed, *part, 12);
    brace(ed, sill, belt, 12);
    for (const std::size_t m : {0U, 1U, 2U}) {
        join(ed, roof[m], belt[m + 1], 12);
        join(ed, roof[m], belt[m + 2], 12);
    }
    const Nose bumper{25, 3};
    addNose(ed, x - 900, y - 800, {sill[0], belt[0], sill[1]}, stone, bumper);
    addNose(ed, x + apart + 1000, y - 800, {sill[5], belt[5], sill[4]}, amber, bumper);
    for (const std::size_t m : {0U, 1U, 2U, 3U}) join(ed, back.hub, sill[m], 12);
    for (const std::size_t m : {2U, 3U, 4U, 5U}) join(ed, front.hub, sill[m], 12);
    join(ed, back.hub, front.hub, 12);
    return ed;
}

Editor caterpillar() {
    Editor ed =
        project("A caterpillar on its way",
                {.gravity = 0.15F, .friction = 0.7F, .viscosity = 0.25F, .bounce = 0.1F, .deltaAngle = 7});
    const int cells = 16;
    const Numbers back = row(ed, 800, 2450, 5300, 2450, cells, leaf);
    const Numbers belly = row(ed, 800, 2750, 5300, 2750, cells, lime);
    const Numbers above = chain(ed, back, 16), below = chain(ed, belly, 16);
    brace(ed, back, belly, 16);
    // The body bends in waves that run to its tail; the ends keep rather still.
    for (std::size_t m = 0; m < above.size(); ++m) {
        const double fromEnd = static_cast<double>(std::min(m, above.size() - 1 - m));
        const double phase = 48.0 * static_cast<double>(m), force = 0.22 * std::min(1.0, fromEnd / 4);
        drive(ed, above[m], phase, force);
        drive(ed, below[m], phase + 180, force);
    }
    for (std::size_t m = 2; m < back.size(); m += 4) nodeAt(ed, back[m]).color = amber;
    const Nose feeler{6, 2};
    addNose(ed, 250, 2600, {back.front(), belly.front(), back[2]}, teal, feeler);
    addNose(ed, 5850, 2600, {back.back(), belly.back(), back[cells - 3]}, coral, feeler);
    return ed;
}

// One pumps, one ripples from its middle, in one the columns take turns: each alike to both sides, so that
// it keeps its place.
Editor jelly() {
    Editor ed =
        project("Three jellies dancing",
                {.gravity = 0.25F, .friction = 0.6F, .viscosity = 0.1F, .bounce = 0.4F, .deltaAngle = 7});
    const std::int32_t colors[] = {rose, lime, amber}, tops[] = {coral, leaf, bark};
    const int columns = 8, rows = 5, spacing = 300;
    const double shifts[] = {0, 50, 180};  // degrees a column
    for (int m = 0; m < 3; ++m) {
        const std::int32_t first = lastNode(ed) + 1, firstLink = lastLink(ed) + 1;
        const int left = 1300 + 4700 * m;
        scenes::addLattice(ed, columns, rows, spacing, left, m == 1 ? 1100 : 600);
        for (std::int32_t n = first; n <= lastNode(ed); ++n)
            nodeAt(ed, n).color = n - first < columns ? tops[m] : colors[m];
        for (std::int32_t j = firstLink; j <= lastLink(ed); ++j) {
            linkAt(ed, j).k = 7;
            const Node &a = nodeAt(ed, linkAt(ed, j).N1), &b = nodeAt(ed, linkAt(ed, j).N2);
            const int column = (a.X - left) / spacing, fromSide = std::min(column, columns - 1 - column);
            if (a.X == b.X) drive(ed, j, shifts[m] * fromSide, 0.2);
        }
    }
    return ed;
}

Editor tower() {
    Editor ed =
        project("Towers swaying to a slow tune",
                {.gravity = 0.25F, .friction = 0.8F, .viscosity = 0.1F, .bounce = 0.1F, .deltaAngle = 2});
    for (int m = 0; m < 4; ++m) {
        const double x = 2000 + 3400 * m, wide = 420, narrow = 160, top = 720, bottom = 2800;
        const int floors = 8;
        const Numbers left = row(ed, x - wide, bottom, x - narrow, top, floors, rainbow[2 * m]);
        const Numbers right = row(ed, x + wide, bottom, x + narrow, top, floors, rainbow[2 * m]);
        const Numbers a = chain(ed, left, 10), b = chain(ed, right, 10);
        brace(ed, left, right, 10);
        for (std::size_t f = 0; f < a.size(); ++f) {
            drive(ed, a[f], 90.0 * m, 0.06);
            drive(ed, b[f], 90.0 * m + 180, 0.06);
        }
        for (const std::int32_t foot : {left[0], right[0]}) nodeAt(ed, foot).Mass = 4;
        const std::int32_t tip = ball(ed, x, top - 250, amber);
        join(ed, tip, left.back(), 10);
        join(ed, tip, right.back(), 10);
        // Outriggers
        const std::int32_t toes[] = {ball(ed, x - 1000, bottom, ink, 3), ball(ed, x + 1000, bottom, ink, 3)};
        for (const std::int32_t toe : toes) {
            const Numbers& side = toe == toes[0] ? left : right;
            join(ed, toe, side[0], 10);
            join(ed, toe, side[1], 10);
            join(ed, toe, side[2], 10);
        }
    }
    return ed;
}

Editor walker() {
    Editor ed =
        project("Six legs out for a walk",
                {.gravity = 0.25F, .friction = 0.9F, .viscosity = 0.2F, .bounce = 0.1F, .deltaAngle = 3});
    addWalker(ed, 1100, 1750, ram);
    return ed;
}

// The wind pulls at everything alike, as weight does on a slope.
Editor climber() {
    Editor ed =
        project("Against the wind it climbs as on a hill, with it it comes down again", {.gravity = 0.25F,
                                                                                         .friction = 0.9F,
                                                                                         .viscosity = 0.2F,
                                                                                         .bounce = 0.1F,
                                                                                         .deltaAngle = 3,
                                                                                         .wind = -0.3F});
    addWalker(ed, 5000, 1750, ram);  // far from the wall that the wind blows it to while it falls
    return ed;
}

Editor wheel() {
    Editor ed =
        project("Wheels that roll by leaning",
                {.gravity = 0.5F, .friction = 0.5F, .viscosity = 0.04F, .bounce = 0.1F, .deltaAngle = 1.1F});
    addWheel(ed, 1600, 1750, 1000, coral, 25);
    addWheel(ed, 4800, 2000, 800, teal, 22);
    return ed;
}

}  // namespace zentrik::zoo
