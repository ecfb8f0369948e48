// Exhibits that stand or move on the floor. They are built a little above it and drop; gravity is low
// and the air thick enough for the fall from the top of a large scene to end gently.

#include "model/store.h"
#include "scenes/scenes.h"
#include "zoo/kit.h"
#include "zoo/zoo.h"

#include <algorithm>

namespace zentrik::zoo {

namespace {

struct Nose {
    float mass, k;
};

// The one node at an end of a creature that reaches a wall first. A wall turns the whole model round at
// every touch, so one that trembled there would shake the creature to pieces: a nose is heavy and softly
// hung, which keeps it out of the gait.
std::int32_t addNose(Editor& ed, double x, double y, const Numbers& behind, std::int32_t color, Nose nose) {
    const std::int32_t tip = ball(ed, x, y, color, nose.mass);
    for (const std::int32_t n : behind) join(ed, tip, n, nose.k);
    return tip;
}

// Spokes lengthen one after the other, so that the heavy hub leans out over the floor's side of the rim
// in step with the clock: the wheel keeps falling forward, a turn of it to a turn of the phase.
struct Wheel {
    std::int32_t hub;
    Numbers rim;
};

Wheel addWheel(Editor& ed, double x, double y, double radius, std::int32_t color, float hubMass) {
    const int count = 20;
    Wheel wheel{ball(ed, x, y, ink, hubMass), ring(ed, x, y, radius, count, color)};
    chain(ed, wheel.rim, 15, true);
    for (int m = 0; m < count; ++m) {
        const auto at = [&](int n) { return wheel.rim[static_cast<std::size_t>(n % count)]; };
        join(ed, at(m), at(m + 2), 10);
        drive(ed, join(ed, wheel.hub, at(m), 12), -360.0 * m / count, 0.25);
    }
    for (std::size_t m = 0; m < wheel.rim.size(); m += 5) nodeAt(ed, wheel.rim[m]).color = amber;
    return wheel;
}

}  // namespace

Editor car() {
    Editor ed =
        project("Out for a drive",
                {.gravity = 0.3F, .friction = 0.5F, .viscosity = 0.1F, .bounce = 0.1F, .deltaAngle = 1.2F});
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
    const Nose feeler{4, 2};
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
        const double x = 2000 + 3400 * m, wide = 420, narrow = 160, top = 500, bottom = 2800;
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
                {.gravity = 0.25F, .friction = 0.9F, .viscosity = 0.1F, .bounce = 0.1F, .deltaAngle = 2.6F});
    const Numbers back = row(ed, 1100, 1150, 4700, 1150, 9, navy, 1.5F);
    const Numbers belly = row(ed, 1100, 1750, 4700, 1750, 9, sky, 1.5F);
    chain(ed, back, 24);
    chain(ed, belly, 24);
    brace(ed, back, belly, 24);
    // A foot hangs from two hips by struts that take turns, so that it goes round; the feet of a pair are
    // half a turn apart, and so are neighbouring pairs.
    for (int m = 0; m < 6; ++m) {
        const std::size_t hip = static_cast<std::size_t>(m / 2 * 3);
        const std::int32_t foot = ball(ed, nodeAt(ed, belly[hip + 1]).X, 2700, m % 2 ? coral : amber, 1.5F);
        const double beat = 180.0 * (m + m / 2);
        drive(ed, join(ed, belly[hip], foot, 30), beat, 0.15);
        drive(ed, join(ed, belly[hip + 2], foot, 30), beat + 90, 0.15);
    }
    const Nose light{0.7F, 12}, heavy{7, 1.6F};
    const std::int32_t head = addNose(ed, 5150, 800, {back.back(), belly.back()}, navy, light);
    addNose(ed, 5600, 1000, {back.back(), belly.back(), head}, coral, heavy);
    const std::int32_t rump = addNose(ed, 750, 1100, {back[0], back[1], belly[0]}, sky, light);
    addNose(ed, 330, 750, {back[0], back[1], rump}, coral, heavy);
    return ed;
}

Editor wheel() {
    Editor ed =
        project("Wheels that roll by leaning",
                {.gravity = 0.5F, .friction = 0.5F, .viscosity = 0.02F, .bounce = 0.1F, .deltaAngle = 1.1F});
    addWheel(ed, 1600, 1750, 1000, coral, 25);
    addWheel(ed, 4600, 2150, 600, teal, 20);
    return ed;
}

}  // namespace zentrik::zoo
