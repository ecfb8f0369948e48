// Exhibits that float in space, water or air.

#include "basics/numbers.h"
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
    join(ed, pin(ed, x, 420), back, 2);
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
    // What keeps it from turning inside out.
    for (std::size_t m = 0; m < 4; ++m) join(ed, dome[m], dome[8 - m], 0.4F);
    for (const std::size_t m : {0U, 2U, 6U, 8U}) join(ed, dome[m], inside[4], 0.4F);
    // Tied to each other, the arms hang like a curtain.
    Numbers before;
    for (const std::size_t m : {1U, 3U, 5U, 7U}) {
        Numbers arm{inside[m]};
        const double ax = x - 420 * std::cos(std::numbers::pi * static_cast<double>(m) / (ribs - 1));
        for (int n = 1; n <= 6; ++n) arm.push_back(ball(ed, ax, y + 230 * n - 150, frill, 0.4F));
        chain(ed, arm, 3);
        for (std::size_t n = 2; n < arm.size(); ++n) join(ed, arm[n - 2], arm[n], 1);
        for (std::size_t n = 1; n < before.size(); ++n) {
            join(ed, before[n], arm[n], 0.6F);
            join(ed, before[n - 1], arm[n], 0.4F);
            join(ed, before[n], arm[n - 1], 0.4F);
        }
        before = arm;
    }
}

}  // namespace

Editor birds() {
    Editor ed = project("Birds on strings", {.gravity = 0.1F, .viscosity = 0.01F, .deltaAngle = 5});
    const std::int32_t colors[] = {navy, coral, teal, plum, leaf, rose, sky};
    for (int m = 0; m < 7; ++m) bird(ed, 1300 + 1940 * m, 850 + 230 * (m * 3 % 7), colors[m], 75.0 * m);
    return ed;
}

Editor jellyfish() {
    Editor ed = project("Jellyfish", {.gravity = 0, .viscosity = 0.12F, .deltaAngle = 3});
    jelly(ed, 2000, 1250, rose, coral, 0);
    jelly(ed, 4550, 1450, sky, navy, 90);
    jelly(ed, 7100, 1150, amber, sand, 200);
    jelly(ed, 9650, 1500, plum, rose, 300);
    jelly(ed, 12200, 1250, teal, lime, 140);
    return ed;
}

// A shooter that is another one's trigger passes the shot on. Targets push a ball away when it comes close.
Editor gallery() {
    Editor ed = project("Start, click the red square, press Ctrl+F: the last cannon fires the shot",
                        {.gravity = 0.4F, .friction = 0.02F, .bounce = 0.9F, .deltaAngle = 2});
    const std::int32_t trigger = pin(ed, 500, 2750, stone);
    Numbers cannons{pin(ed, 800, 2600, coral), pin(ed, 1250, 2450, amber), pin(ed, 1600, 2150, navy)};
    std::int32_t before = trigger;
    for (const std::int32_t n : cannons) {
        join(ed, before, n, 5);
        nodeAt(ed, n).Trigger = before;
        before = n;
    }
    for (int m = 0; m < 4; ++m) {
        const double x = 4700 + 2250 * m, y = 1150 + 350 * (m % 2);
        const std::int32_t hook = rocker(ed, x, 500, 110, 90.0 * m);
        const Numbers target = ring(ed, x, y, 420, 12, m % 2 ? coral : sky, 0.5F);
        const Numbers inside = ring(ed, x, y, 210, 12, snow, 0.5F);
        const std::int32_t eye = ball(ed, x, y, amber, 2);
        nodeAt(ed, eye).Gravity = -0.04F;
        dress(ed, eye, "target.svg");
        chain(ed, target, 8, true);
        chain(ed, inside, 8, true);
        brace(ed, target, inside, 8);
        for (const std::int32_t n : inside) join(ed, n, eye, 8);
        join(ed, hook, target[9], 12);
        launch(ed, eye, m % 2 ? 180 : 0, 3000);
    }
    for (int m = 0; m < 3; ++m) launch(ed, ball(ed, 2600, 900 + 300 * m, rainbow[m]), 15 * m, 2500 + 600 * m);
    return ed;
}

// A loose net, drawn together and let go in waves that run along it.
Editor shoal() {
    Editor ed = project("Press Display Sprites, release Show Links: a shoal in the current",
                        {.gravity = 0, .viscosity = 0.15F, .deltaAngle = 1.5F});
    const int columns = 10, rows = 3;
    std::vector<Numbers> lines;
    for (int r = 0; r < rows; ++r) {
        const double y = 980 + 700 * r, shift = r % 2 * 600;
        Numbers line{pin(ed, 300, y, sky)};
        for (int c = 0; c < columns; ++c) {
            line.push_back(ball(ed, 900 + shift + 1240 * c, y, rainbow[(c + 3 * r) % 9]));
            dress(ed, line.back(), "fish.svg");
        }
        line.push_back(pin(ed, 13980, y, sky));
        const Numbers along = chain(ed, line, 2);
        for (std::size_t c = 0; c < along.size(); ++c) drive(ed, along[c], 50.0 * double(c) + 30 * r, 0.35);
        lines.push_back(line);
    }
    for (std::size_t r = 1; r < lines.size(); ++r)
        for (std::size_t c = 1; c <= columns; ++c) {
            drive(ed, join(ed, lines[r - 1][c], lines[r][c], 2), 70.0 * double(c), 0.25);
            if (c > 1 && r == 1) join(ed, lines[r - 1][c], lines[r][c - 1], 1);
        }
    return ed;
}

}  // namespace zentrik::zoo
