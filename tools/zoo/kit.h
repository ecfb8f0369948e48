#pragma once
// What the sample projects are built from: a few colours, and short words for nodes and links.

#include "model/editor.h"

#include <string>
#include <vector>

namespace zentrik::zoo {

constexpr std::int32_t rgb(int red, int green, int blue) { return red + 256 * green + 65536 * blue; }

inline constexpr std::int32_t ink = rgb(44, 48, 58), stone = rgb(128, 134, 145), snow = rgb(244, 244, 240);
inline constexpr std::int32_t coral = rgb(236, 94, 82), rose = rgb(244, 150, 166), plum = rgb(132, 84, 168);
inline constexpr std::int32_t amber = rgb(248, 176, 44), sand = rgb(238, 208, 150), bark = rgb(138, 92, 58);
inline constexpr std::int32_t leaf = rgb(92, 170, 84), lime = rgb(172, 210, 82), teal = rgb(38, 160, 152);
inline constexpr std::int32_t sky = rgb(112, 186, 236), navy = rgb(50, 92, 168), skin = rgb(250, 206, 168);
inline constexpr std::int32_t rainbow[] = {coral, amber, lime, leaf, teal, sky, navy, plum, rose};

using Numbers = std::vector<std::int32_t>;  // of nodes or links, in the order of their making

// The world a project lives in. The scene is the one of a first run, so that its models fit there.
struct World {
    float gravity = 1, friction = 0.2F, viscosity = 0, bounce = 0.5F;
    float deltaAngle = 1;     // animator speed, radians per time unit
    float timeInterval = 10;  // thousandths of a time unit a step
    float wind = 0;
};
Editor project(const std::string& title, const World& world);

std::int32_t ball(Editor& ed, double x, double y, std::int32_t color, float mass = 1);
std::int32_t pin(Editor& ed, double x, double y, std::int32_t color = ink);  // a locked node
void dress(Editor& ed, std::int32_t node, const char* sprite);               // a file of the folder sprites
// A barrier between two new pins: only level and upright ones deflect nodes.
void barrier(Editor& ed, double x1, double y1, double x2, double y2);
// Four barriers around a space.
void box(Editor& ed, double left, double top, double right, double bottom);
std::int32_t join(Editor& ed, std::int32_t a, std::int32_t b, float k);  // gives the link's number
// Makes a link an animator; degrees of any size.
void drive(Editor& ed, std::int32_t link, double degrees, double force);
// Initial velocity: 0 degrees is to the right, 90 up; twips per time unit.
void launch(Editor& ed, std::int32_t node, double degrees, double speed);

// Joins each node to the next one; a closed chain also the last to the first.
Numbers chain(Editor& ed, const Numbers& nodes, float k, bool closed = false);
// Nodes on a circle, the first on the right, then clockwise on the screen.
Numbers ring(Editor& ed, double x, double y, double radius, int count, std::int32_t color, float mass = 1);
// Nodes in a straight line, both ends included.
Numbers row(Editor& ed, double x1, double y1, double x2, double y2, int count, std::int32_t color,
            float mass = 1);
// A place between two pins that rocks from side to side, to hang things from.
std::int32_t rocker(Editor& ed, double x, double y, double reach, double degrees);
// Two rows of equal length braced into a truss, without the links along the rows.
void brace(Editor& ed, const Numbers& upper, const Numbers& lower, float k);

}  // namespace zentrik::zoo
