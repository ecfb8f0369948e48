#include "effects/fireworks.h"

#include "basics/angles.h"
#include "basics/numbers.h"
#include "model/redraw.h"
#include "model/store.h"

#include <cmath>

namespace zentrik {

namespace {

constexpr std::int32_t crowded = 400;   // node slots beyond which the model is cleared first
constexpr float sparkSpeed = 5000;      // twips per time unit
constexpr std::int32_t scatter = 2001;  // a scattered spark starts less than this from the centre, twips

struct Point {
    std::int32_t x = 0, y = 0;
};

struct Burst {
    std::int32_t sparks = 0, radius = 0;  // radius: the last spark's, twips
};

std::int32_t wholePart(double value) { return toInt(std::floor(value)); }

// Somewhere between two fractions of an extent.
std::int32_t between(Editor& ed, double extent, double from, double to) {
    return wholePart((to * extent - from * extent + 1) * ed.chance.next() + from * extent);
}

Burst addBurst(Editor& ed, Point centre, bool scattered) {
    ed.chance.reseed();
    Burst burst{wholePart(ed.chance.next() * 51.0 + 10), 0};
    const double step = toReal(ringTurn / burst.sparks);
    for (std::int32_t m = 0; m < burst.sparks; ++m) {
        if (scattered) burst.radius = wholePart(static_cast<double>(ed.chance.next()) * scatter);
        const double sine = std::sin(step * m), cosine = std::cos(step * m);
        Node spark = standardNode(ed, burst.radius * sine + centre.x, burst.radius * cosine + centre.y);
        spark.Vx = toReal(sine * sparkSpeed);
        spark.Vy = toReal(cosine * sparkSpeed);
        appendNode(ed, spark);
    }
    return burst;
}

}  // namespace

void followFireworksMark(Editor& ed, Host&) { ed.timerFireWorks.enabled = ed.marks.mnuDisplayFireWorks; }

void timerFireWorks_Timer(Editor& ed) {
    if (!ed.Timer1.enabled) return;
    Point centre;
    centre.y = between(ed, ed.sceneHeight, 0.2, 0.4);
    centre.x = between(ed, ed.sceneWidth, 0.4, 0.6);
    if (lastNode(ed) > crowded) ClearAnimation(ed);

    ++ed.FireworksTicks;
    if (ed.FireworksTicks % 3 == 0)
        for (Node& node : ed.Nodes) node.Vx = -node.Vx;
    Burst last;
    if (ed.FireworksTicks % 5 == 0) last = addBurst(ed, centre, true);
    if (ed.FireworksTicks % 2 != 0) last = addBurst(ed, centre, false);
    redrawModel(ed);
    panel(ed, 5) =
        "Node ring created (" + std::to_string(last.sparks) + " : " + std::to_string(last.radius) + ")";
}

}  // namespace zentrik
