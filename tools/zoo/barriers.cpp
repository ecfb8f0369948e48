// Exhibits of barriers. Balls that fall lose a little at every bounce and come to lie on a barrier, through
// which they slip; so these float, and their bounce of 1 keeps their pace for ever.

#include "model/store.h"
#include "zoo/kit.h"
#include "zoo/zoo.h"

namespace zentrik::zoo {

namespace {

constexpr double top = 480, low = 2900;

Editor court(const char* title) { return project(title, {.gravity = 0, .friction = 0, .bounce = 1}); }

void throwBall(Editor& ed, double x, double y, std::int32_t color, double degrees, double speed) {
    const std::int32_t n = ball(ed, x, y, color);
    dress(ed, n, "ball.svg");
    launch(ed, n, degrees, speed);
}

}  // namespace

Editor boxes() {
    Editor ed = court("Uncheck Barriers > Ignore Barriers and start: each box keeps its balls");
    const int counts[] = {1, 3, 8, 20};
    for (int m = 0; m < 4; ++m) {
        const double left = 500 + 3400 * m, right = left + 2900;
        box(ed, left, top + 250 * m, right, low);
        for (int b = 0; b < counts[m]; ++b)
            throwBall(ed, left + 300 + 120 * b, 2600 - 60 * b, rainbow[(2 * m + b) % 9], 32 + 17 * b % 320,
                      900 + 30 * b);
    }
    return ed;
}

// Steps on both sides, shelves between them.
Editor marbles() {
    Editor ed = court("Uncheck Barriers > Ignore Barriers and start: marbles among steps and shelves");
    const double left = 300, right = 13980, width = 700, rise = 400;
    box(ed, left, top, right, low);
    for (int m = 0; m < 4; ++m) {
        const double height = rise * (4 - m), y = low - height;
        const double outer[] = {left + width * m, right - width * m},
                     inner[] = {outer[0] + width, outer[1] - width};
        for (const int side : {0, 1}) {
            barrier(ed, outer[side], y, inner[side], y);
            barrier(ed, inner[side], y, inner[side], m == 3 ? low : y + rise);
        }
    }
    for (int m = 0; m < 3; ++m)
        for (int s = 0; s < 4 - m % 2; ++s) {
            const double x = 3900 + 1750 * s + m % 2 * 875;
            barrier(ed, x, 1100 + 550 * m, x + 1000, 1100 + 550 * m);
        }
    for (int b = 0; b < 12; ++b)
        throwBall(ed, 3700 + 600 * b, 800, rainbow[b % 9], 20 + 29 * b % 340, 1100 + 60 * b);
    return ed;
}

// Each column keeps its own pace, so that the colours mix and part again.
Editor crowd() {
    Editor ed = court("10,000 balls: uncheck Barriers > Ignore Barriers, start, look at the rate");
    ed.TimeInterval = 20;
    ed.timerPeriod = 20;
    barrier(ed, 60, top, 14190, top);
    barrier(ed, 60, low, 14190, low);
    const int columns = 250, rows = 40;
    for (int c = 0; c < columns; ++c)
        for (int r = 0; r < rows; ++r)
            launch(ed, ball(ed, 150 + 56 * c, 700 + 28 * r, rainbow[r * 9 / rows]), 270, 400 + 8 * c);
    return ed;
}

}  // namespace zentrik::zoo
