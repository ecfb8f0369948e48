#include "zoo/creatures.h"

#include "model/store.h"

namespace zentrik::zoo {

std::int32_t addNose(Editor& ed, double x, double y, const Numbers& behind, std::int32_t color, Nose nose) {
    const std::int32_t tip = ball(ed, x, y, color, nose.mass);
    for (const std::int32_t n : behind) join(ed, tip, n, nose.k);
    return tip;
}

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

void addFlag(Editor& ed, double x, double y, const std::int32_t (&stripes)[3], const Fabric& fabric) {
    const int columns = fabric.columns, rows = 6;
    const double step = fabric.step;
    const float k = fabric.k, weak = fabric.weak;
    chain(ed,
          {pin(ed, x, y - 200, amber), pin(ed, x, y), pin(ed, x, y + step * (rows - 1)), pin(ed, x, 2880)},
          k);
    Numbers before;
    for (int r = 0; r < rows; ++r) before.push_back(pin(ed, x, y + step * r));
    for (int c = 1; c < columns; ++c) {
        Numbers column;
        for (int r = 0; r < rows; ++r)
            column.push_back(ball(ed, x + step * c, y + step * r, stripes[r * 3 / rows], fabric.mass));
        chain(ed, column, k);
        for (int r = 0; r < rows; ++r) {
            const std::size_t a = static_cast<std::size_t>(r);
            join(ed, before[a], column[a], k);
            if (r == 0) continue;
            const std::int32_t down = join(ed, before[a - 1], column[a], c == 1 ? k : weak);
            const std::int32_t up = join(ed, before[a], column[a - 1], c == 1 ? k : weak);
            if (c != 1) continue;
            drive(ed, down, fabric.beat, 0.25);
            drive(ed, up, fabric.beat + 180, 0.25);
        }
        before = column;
    }
}

Numbers spokedWheel(Editor& ed, double x, double y, double radius, std::int32_t color, float rotate) {
    const std::int32_t hub = pin(ed, x, y);
    nodeAt(ed, hub).Rotate = rotate;
    const Numbers rim = ring(ed, x, y, radius, 16, color);
    chain(ed, rim, 15, true);
    for (const std::int32_t n : rim) join(ed, hub, n, 15);
    nodeAt(ed, rim[0]).color = amber;
    return rim;
}

void addWalker(Editor& ed, double x, double y, Nose nose) {
    const Numbers back = row(ed, x, y - 600, x + 3600, y - 600, 9, navy, 1.5F);
    const Numbers belly = row(ed, x, y, x + 3600, y, 9, sky, 1.5F);
    chain(ed, back, 24);
    chain(ed, belly, 24);
    brace(ed, back, belly, 24);
    // A foot hangs from two hips by struts that take turns, so that it goes round; the feet of a pair are
    // half a turn apart, and so are neighbouring pairs.
    for (int m = 0; m < 6; ++m) {
        const std::size_t hip = static_cast<std::size_t>(m / 2 * 3);
        const std::int32_t foot =
            ball(ed, nodeAt(ed, belly[hip + 1]).X, y + 950, m % 2 ? coral : amber, 1.5F);
        const double beat = 180.0 * (m + m / 2);
        drive(ed, join(ed, belly[hip], foot, 30), beat, 0.15);
        drive(ed, join(ed, belly[hip + 2], foot, 30), beat + 90, 0.15);
    }
    const Nose light{0.7F, 12};
    const std::int32_t head = addNose(ed, x + 4050, y - 950, {back.back(), belly.back()}, navy, light);
    addNose(ed, x + 4500, y - 750, {back.back(), belly.back(), head}, coral, nose);
    const std::int32_t rump = addNose(ed, x - 350, y - 650, {back[0], back[1], belly[0]}, sky, light);
    addNose(ed, x - 770, y - 1000, {back[0], back[1], rump}, coral, nose);
}

void addBench(Editor& ed, double x, double y) {
    const Numbers hips = row(ed, x, y, x + 2400, y, 3, navy);
    const Numbers back = row(ed, x + 600, y - 600, x + 1800, y - 600, 2, sky);
    const float k = 5;
    chain(ed, {hips[0], back[0], hips[1], back[1], hips[2], hips[1], hips[0]}, k);
    join(ed, back[0], back[1], k);
    // A foot hangs from two hips by muscles that take turns, so that it goes round; the feet of a pair
    // are half a turn apart, and the pairs a quarter.
    const double beats[] = {0, 180, 90, 270};
    for (int m = 0; m < 4; ++m) {
        const std::size_t hip = static_cast<std::size_t>(m / 2);
        const double middle = x + 600 + 1200 * (m / 2) + (m % 2 ? 200 : -200);
        const std::int32_t foot = ball(ed, middle, y + 950, m % 2 ? coral : amber);
        drive(ed, join(ed, hips[hip], foot, k), beats[m], 0.1);
        drive(ed, join(ed, foot, hips[hip + 1], k), beats[m] + 90, 0.1);
    }
}

}  // namespace zentrik::zoo
