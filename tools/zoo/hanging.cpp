// Exhibits that hang from the top of the scene, and so need no floor.

#include "model/store.h"
#include "zoo/creatures.h"
#include "zoo/kit.h"
#include "zoo/zoo.h"

namespace zentrik::zoo {

namespace {

// A sagging string of coloured pennants between two places.
void bunting(Editor& ed, double x1, double x2, double y, int count) {
    Numbers string{pin(ed, x1, y)};
    for (int m = 1; m < count; ++m)
        string.push_back(ball(ed, x1 + (x2 - x1) * m / count, y + 60, rainbow[m % 9], 0.3F));
    string.push_back(pin(ed, x2, y));
    chain(ed, string, 4);
}

// An acrobat hanging by the hands, seen from the side; rocked from above, and kicking to the same beat.
void acrobat(Editor& ed, double x, std::int32_t suit, double beat, double side) {
    const float k = 15;
    const auto at = [&](double dx, double y, std::int32_t color, float mass) {
        return ball(ed, x + side * dx, y, color, mass);
    };
    const std::int32_t top = rocker(ed, x, 480, 130, beat);
    const std::int32_t bar = at(0, 1160, bark, 1);
    const std::int32_t shoulder = at(-60, 1470, suit, 1);
    const std::int32_t head = at(120, 1360, skin, 1);
    const std::int32_t chest = at(120, 1610, suit, 1);
    const std::int32_t hip = at(0, 1880, suit, 1);
    const std::int32_t knee = at(60, 2200, suit, 0.7F);
    const std::int32_t foot = at(-40, 2500, ink, 0.7F);
    join(ed, top, bar, k);
    chain(ed, {bar, shoulder, hip, knee, foot}, k);
    chain(ed, {shoulder, head, chest, hip}, k);
    join(ed, shoulder, chest, k);
    join(ed, bar, head, 2);
    join(ed, bar, hip, 2);
    join(ed, hip, foot, 3);
    drive(ed, join(ed, chest, knee, 4), beat + 90, 0.35);
}

}  // namespace

Editor acrobats() {
    Editor ed =
        project("Acrobats on the flying trapeze", {.gravity = 0.6F, .viscosity = 0.02F, .deltaAngle = 1.9F});
    const std::int32_t suits[] = {coral, navy, amber, teal, plum, leaf};
    for (int m = 0; m < 6; ++m) acrobat(ed, 1540 + 2240 * m, suits[m], 100.0 * m, m % 2 == 0 ? 1 : -1);
    for (int m = 0; m < 5; ++m) bunting(ed, 1980 + 2240 * m, 3340 + 2240 * m, 400, 7);
    return ed;
}

// Long: a drawing, stroke by stroke.
Editor bridge() {
    Editor ed =
        project("A rope bridge in the rush hour", {.gravity = 0.3F, .viscosity = 0.01F, .deltaAngle = 2.5F});
    const int spans = 3, planks = 12;  // planks of a span
    const double step = 370, left = 480;
    Numbers deck, cable;
    for (int m = 0; m <= spans * planks; ++m) {
        const double x = left + step * m, part = 2.0 * (m % planks) / planks - 1;
        const bool tower = m % planks == 0;
        deck.push_back(tower ? pin(ed, x, 2250) : ball(ed, x, 2250, bark));
        cable.push_back(tower ? pin(ed, x, 500) : ball(ed, x, 1600 - 1050 * part * part, stone, 0.5F));
        const std::int32_t hanger = join(ed, cable.back(), deck.back(), 8);
        if (tower) join(ed, deck.back(), pin(ed, x, 2880), 10);
        // A wave runs along the bridge as the traffic creeps on.
        if (!tower) drive(ed, hanger, 45.0 * m, 0.1);
    }
    chain(ed, deck, 15);
    chain(ed, cable, 15);
    int cars = 0;
    for (const std::size_t m : {2U, 7U, 14U, 18U, 21U, 26U, 31U}) {
        const std::int32_t color = rainbow[cars++ * 2 % 9];
        const double x = nodeAt(ed, deck[m]).X;
        const Numbers tyres{deck[m], deck[m + 2]};
        const Numbers body = row(ed, x - 120, 1980, x + 860, 1980, 3, color);
        const Numbers roof = row(ed, x + 160, 1740, x + 580, 1740, 2, color, 0.5F);
        for (const std::int32_t tyre : tyres) nodeAt(ed, tyre).color = ink;
        chain(ed, body, 10);
        brace(ed, {body[0], body[2]}, tyres, 8);
        join(ed, body[1], tyres[0], 8);
        join(ed, body[1], tyres[1], 8);
        brace(ed, roof, {body[0], body[2]}, 8);
        join(ed, roof[0], roof[1], 8);
    }
    return ed;
}

Editor cloth() {
    Editor ed =
        project("Cloth in the wind", {.gravity = 0.05F, .viscosity = 0.02F, .deltaAngle = 5, .wind = 1.5F});
    const std::int32_t stripes[3][3] = {{coral, snow, navy}, {leaf, amber, coral}, {sky, snow, plum}};
    for (int m = 0; m < 3; ++m) addFlag(ed, 600 + 4600 * m, 900, stripes[m], {0.5F, 5, 100.0 * m});
    return ed;
}

// Chains of growing length, all rocked alike: each finds its own dance.
Editor pendulum() {
    Editor ed =
        project("Chains rocked to one beat", {.gravity = 0.8F, .viscosity = 0.01F, .deltaAngle = 3.2F});
    for (int m = 0; m < 9; ++m) {
        const double x = 900 + 1560 * m;
        Numbers nodes{rocker(ed, x, 480, 120, 0)};
        const int count = 3 + m;
        for (int n = 1; n <= count; ++n)
            nodes.push_back(ball(ed, x, 480 + 160 * n, rainbow[(m + n) % 9], n == count ? 3.0F : 1.0F));
        chain(ed, nodes, 15);
    }
    return ed;
}

}  // namespace zentrik::zoo
