// Exhibits held together by attraction alone. A node of attraction g pulls a node of mass m at distance d
// with an acceleration of 1e9 g / (d^2 m).

#include "basics/numbers.h"
#include "model/store.h"
#include "zoo/kit.h"
#include "zoo/zoo.h"

#include <cmath>
#include <numbers>

namespace zentrik::zoo {

namespace {

// The steps damp what turns at w as a drag of dt w^2 / 2 would. A Viscosity below zero gives it back, exactly
// so at one distance; it is slow motion that lets neighbouring orbits last.
constexpr double step = 0.02;
float giveBack(double g, double distance) { return toReal(-5e7 * g * step / std::pow(distance, 3)); }

std::int32_t attract(Editor& ed, std::int32_t node, double g) {
    nodeAt(ed, node).Gravity = toReal(g);
    return node;
}

struct Orbit {
    double distance, degrees;
    double faster = 1;  // than on a circle
};

std::int32_t satellite(Editor& ed, std::int32_t centre, const Orbit& orbit, std::int32_t color, double mass) {
    const Node middle = nodeAt(ed, centre);
    const double angle = orbit.degrees * std::numbers::pi / 180;
    const std::int32_t n = ball(ed, middle.X + orbit.distance * std::cos(angle),
                                middle.Y - orbit.distance * std::sin(angle), color, toReal(mass));
    const double speed = std::sqrt(1e9 * static_cast<double>(middle.Gravity) / (orbit.distance * mass));
    launch(ed, n, std::fmod(std::round(orbit.degrees) + 90, 360), speed * orbit.faster);
    return n;
}

}  // namespace

Editor moon() {
    const double g = 0.095, distance = 1150;
    Editor ed = project("Press Display Sprites: the planet attracts the moon without a link (G of a node)",
                        {.gravity = 0, .viscosity = giveBack(g, distance), .timeInterval = 1000 * step});
    const std::int32_t planet = attract(ed, pin(ed, 7140, 1680, sky), g);
    dress(ed, planet, "planet.svg");
    dress(ed, satellite(ed, planet, {distance, 0}, stone, 1), "moon.svg");
    dress(ed, satellite(ed, planet, {distance, 150}, coral, 1), "rocket.svg");
    return ed;
}

Editor planets() {
    const double g = 0.09, distance = 1150;
    Editor ed = project("Press Display Sprites: the sun attracts its planets; the lighter ones overtake",
                        {.gravity = 0, .viscosity = giveBack(g, distance), .timeInterval = 1000 * step});
    const std::int32_t sun = attract(ed, pin(ed, 7140, 1680, amber), g);
    dress(ed, sun, "sun.svg");
    const char* const sprites[] = {"planet.svg", "moon.svg", "rocket.svg"};
    for (int m = 0; m < 6; ++m)
        dress(ed, satellite(ed, sun, {distance, 60.0 * m}, rainbow[m], 1 + 0.4 * m), sprites[m % 3]);
    return ed;
}

}  // namespace zentrik::zoo
