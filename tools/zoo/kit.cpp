#include "zoo/kit.h"

#include "basics/numbers.h"
#include "model/store.h"
#include "scenes/scenes.h"

#include <cmath>
#include <numbers>

namespace zentrik::zoo {

Editor project(const std::string& title, const World& world) {
    Editor ed;
    ed.ProjectTitle = title;
    ed.Gravity = world.gravity;
    ed.Friction = world.friction;
    ed.Viscosity = world.viscosity;
    ed.Bounce = world.bounce;
    ed.LeftWind = world.wind;
    ed.TimeInterval = world.timeInterval;
    ed.timerPeriod = toInt(world.timeInterval);  // so that a time unit lasts a second
    ed.DeltaAngle = world.deltaAngle;
    ed.sceneWidth = 14280;
    ed.sceneHeight = 3110;  // in whole pixels, as the smallest window has it
    return ed;
}

std::int32_t ball(Editor& ed, double x, double y, std::int32_t color, float mass) {
    const std::int32_t number = scenes::addNode(ed, toInt(x), toInt(y));
    nodeAt(ed, number).color = color;
    nodeAt(ed, number).Mass = mass;
    return number;
}

std::int32_t pin(Editor& ed, double x, double y, std::int32_t color) {
    const std::int32_t number = ball(ed, x, y, color);
    nodeAt(ed, number).Locked = true;
    return number;
}

void dress(Editor& ed, std::int32_t node, const char* sprite) { nodeAt(ed, node).Sprite = sprite; }

void barrier(Editor& ed, double x1, double y1, double x2, double y2) {
    const std::int32_t from = pin(ed, x1, y1), to = pin(ed, x2, y2);
    linkAt(ed, join(ed, from, to, 5)).Barrier = true;
}

void box(Editor& ed, double left, double top, double right, double bottom) {
    barrier(ed, left, top, right, top);
    barrier(ed, left, bottom, right, bottom);
    barrier(ed, left, top, left, bottom);
    barrier(ed, right, top, right, bottom);
}

std::int32_t join(Editor& ed, std::int32_t a, std::int32_t b, float k) {
    return scenes::addLink(ed, a, b, k);
}

void drive(Editor& ed, std::int32_t link, double degrees, double force) {
    linkAt(ed, link).Animator = true;
    linkAt(ed, link).Angle = toReal(degrees - 360 * std::floor(degrees / 360));
    linkAt(ed, link).Force = toReal(force);
}

void launch(Editor& ed, std::int32_t node, double degrees, double speed) {
    nodeAt(ed, node).Vxo = toReal(degrees);
    nodeAt(ed, node).Vyo = toReal(speed / 1000);
}

Numbers chain(Editor& ed, const Numbers& nodes, float k, bool closed) {
    Numbers links;
    for (std::size_t m = 1; m < nodes.size(); ++m) links.push_back(join(ed, nodes[m - 1], nodes[m], k));
    if (closed) links.push_back(join(ed, nodes.back(), nodes.front(), k));
    return links;
}

Numbers ring(Editor& ed, double x, double y, double radius, int count, std::int32_t color, float mass) {
    Numbers nodes;
    for (int m = 0; m < count; ++m) {
        const double angle = 2 * std::numbers::pi * m / count;
        nodes.push_back(ball(ed, x + radius * std::cos(angle), y + radius * std::sin(angle), color, mass));
    }
    return nodes;
}

Numbers row(Editor& ed, double x1, double y1, double x2, double y2, int count, std::int32_t color,
            float mass) {
    Numbers nodes;
    for (int m = 0; m < count; ++m) {
        const double part = static_cast<double>(m) / (count - 1);
        nodes.push_back(ball(ed, x1 + (x2 - x1) * part, y1 + (y2 - y1) * part, color, mass));
    }
    return nodes;
}

std::int32_t rocker(Editor& ed, double x, double y, double reach, double degrees) {
    const std::int32_t left = pin(ed, x - 260, y - 80), right = pin(ed, x + 260, y - 80);
    const std::int32_t middle = ball(ed, x, y, stone, 2);
    drive(ed, join(ed, left, middle, 30), degrees, reach / 260);
    drive(ed, join(ed, right, middle, 30), degrees + 180, reach / 260);
    return middle;
}

void brace(Editor& ed, const Numbers& upper, const Numbers& lower, float k) {
    for (std::size_t m = 0; m < upper.size(); ++m) {
        join(ed, upper[m], lower[m], k);
        if (m == 0) continue;
        join(ed, upper[m - 1], lower[m], k);
        join(ed, upper[m], lower[m - 1], k);
    }
}

}  // namespace zentrik::zoo
