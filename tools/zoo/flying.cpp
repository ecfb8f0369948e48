// Exhibits that float in space, water or air.

#include "model/numbers.h"
#include "model/store.h"
#include "zoo/kit.h"
#include "zoo/zoo.h"

#include <cmath>
#include <numbers>

namespace zentrik::zoo {

namespace {

// Seen from the front, on a soft string. Muscles above and below pull each wing in turn; its outer half
// follows.
void bird(Editor& ed, double x, double y, std::int32_t color, double beat) {
    const std::int32_t back = ball(ed, x, y, color, 2), chest = ball(ed, x, y + 280, color, 3);
    const std::int32_t head = ball(ed, x, y + 60, amber, 1);
    join(ed, pin(ed, x, 200), back, 2);
    join(ed, back, chest, 10);
    join(ed, head, chest, 10);
    join(ed, head, back, 10);
    for (const int side : {-1, 1}) {
        const std::int32_t inner = ball(ed, x + side * 380, y + 80, color, 0.6F);
        const std::int32_t outer = ball(ed, x + side * 760, y + 120, snow, 0.3F);
        drive(ed, join(ed, back, inner, 10), beat, 0.13);
        drive(ed, join(ed, chest, inner, 10), beat + 180, 0.13);
        join(ed, inner, outer, 10);
        join(ed, back, outer, 0.5F);
    }
}

void jelly(Editor& ed, double x, double y, std::int32_t color, std::int32_t frill, double beat) {
    const int ribs = 9;
    Numbers dome, inside;
    for (int m = 0; m < ribs; ++m) {
        const double angle = std::numbers::pi * m / (ribs - 1);
        dome.push_back(ball(ed, x - 620 * std::cos(angle), y - 560 * std::sin(angle), color));
        inside.push_back(ball(ed, x - 420 * std::cos(angle), y - 340 * std::sin(angle), frill, 0.6F));
    }
    const Numbers rim = chain(ed, dome, 6), lining = chain(ed, inside, 6);
    brace(ed, dome, inside, 6);
    for (const std::int32_t j : rim) drive(ed, j, beat + 180, 0.15);
    for (const std::int32_t j : lining) drive(ed, j, beat, 0.3);
    for (const std::size_t m : {1U, 3U, 5U, 7U}) {
        Numbers arm{inside[m]};
        const double ax = x - 420 * std::cos(std::numbers::pi * static_cast<double>(m) / (ribs - 1));
        for (int n = 1; n <= 6; ++n) arm.push_back(ball(ed, ax, y + 230 * n - 150, frill, 0.4F));
        chain(ed, arm, 3);
        for (std::size_t n = 2; n < arm.size(); ++n) join(ed, arm[n - 2], arm[n], 1);
    }
}

}  // namespace

Editor birds() {
    Editor ed = project("Birds on strings", {.gravity = 0.1F, .viscosity = 0.01F, .deltaAngle = 5});
    const std::int32_t colors[] = {navy, coral, teal, plum, leaf, rose, sky};
    for (int m = 0; m < 7; ++m) bird(ed, 1300 + 1940 * m, 750 + 250 * (m * 3 % 7), colors[m], 75.0 * m);
    return ed;
}

Editor jellyfish() {
    Editor ed = project("Jellyfish", {.gravity = 0, .viscosity = 0.08F, .deltaAngle = 3});
    jelly(ed, 2000, 1100, rose, coral, 0);
    jelly(ed, 4550, 1300, sky, navy, 90);
    jelly(ed, 7100, 1000, amber, sand, 200);
    jelly(ed, 9650, 1350, plum, rose, 300);
    jelly(ed, 12200, 1100, teal, lime, 140);
    return ed;
}

// Planets on the arms of an orrery, with a moon each. The step damps what it turns, the more the faster
// it turns; a Viscosity below zero gives just as much back, and more to the lighter ones. So a planet of
// mass m settles at an angular speed of sqrt(-20 x Viscosity / (m x dt)), whatever its start.
Editor planets() {
    Editor ed = project("Three suns and their planets", {.gravity = 0, .viscosity = -0.0012F});
    const double settled = std::sqrt(-20 * static_cast<double>(ed.Viscosity) / 0.01);  // for a mass of 1
    for (int s = 0; s < 3; ++s) {
        const double x = 2000 + 5080 * s, y = 1500;
        const std::int32_t sun = pin(ed, x, y, coral);
        nodeAt(ed, sun).Gravity = 0.2F;
        for (int m = 0; m < 5; ++m) {
            const double radius = 380 + 220 * m, mass = 0.4 * std::pow(1.7, m);
            const int degrees = 137 * m + 40 * s;
            const double angle = degrees * std::numbers::pi / 180;
            const double px = x + radius * std::cos(angle), py = y - radius * std::sin(angle);
            const std::int32_t planet = ball(ed, px, py, rainbow[(m * 2 + s * 3) % 9], toReal(mass));
            nodeAt(ed, planet).Gravity = 0.001F;
            join(ed, sun, planet, 3);
            const int forward = (degrees + (s == 1 ? 270 : 90)) % 360;
            launch(ed, planet, forward, radius * settled / std::sqrt(mass));
            if (m % 2 == 0 && m != 4) continue;
            const double away = m == 4 ? -190 : 150;
            const std::int32_t moon =
                ball(ed, px + away * std::cos(angle), py - away * std::sin(angle), snow, 0.3F);
            join(ed, planet, moon, 3);
            launch(ed, moon, forward, radius * settled / std::sqrt(mass) + away * settled / std::sqrt(0.3));
        }
    }
    return ed;
}

// Cannons aim away from their triggers. Targets push a ball away when it comes close.
Editor range() {
    Editor ed = project("Shooting range: start, select a cannon, and fire",
                        {.gravity = 0.4F, .friction = 0.02F, .bounce = 0.9F, .deltaAngle = 2});
    const double aims[][2] = {{-380, 380}, {-480, 260}};
    for (int m = 0; m < 2; ++m) {
        const double x = 900 + 1100 * m, y = 2300;
        const std::int32_t cannon = pin(ed, x, y, m == 0 ? coral : navy);
        const std::int32_t trigger = pin(ed, x + aims[m][0], y + aims[m][1], stone);
        join(ed, cannon, trigger, 5);
        nodeAt(ed, cannon).Trigger = trigger;
    }
    for (int m = 0; m < 4; ++m) {
        const double x = 4700 + 2250 * m, y = 900 + 450 * (m % 2);
        const std::int32_t hook = rocker(ed, x, 250, 110, 90.0 * m);
        const Numbers target = ring(ed, x, y, 420, 12, m % 2 ? coral : sky, 0.5F);
        const Numbers inside = ring(ed, x, y, 210, 12, snow, 0.5F);
        const std::int32_t eye = ball(ed, x, y, amber, 2);
        nodeAt(ed, eye).Gravity = -0.6F;
        chain(ed, target, 8, true);
        chain(ed, inside, 8, true);
        brace(ed, target, inside, 8);
        for (const std::int32_t n : inside) join(ed, n, eye, 8);
        join(ed, hook, target[9], 12);
        launch(ed, eye, m % 2 ? 180 : 0, 3000);
    }
    for (int m = 0; m < 3; ++m) launch(ed, ball(ed, 2600, 700 + 300 * m, rainbow[m]), 15 * m, 2500 + 600 * m);
    return ed;
}

}  // namespace zentrik::zoo
