#pragma once
// What moves about on the floor by itself, and its parts.

#include "zoo/kit.h"

namespace zentrik::zoo {

struct Nose {
    float mass, k;
};
// The one node at an end of a creature that reaches a wall first. A wall turns the whole model round at
// every touch, so one that trembled there would shake the creature to pieces: a nose is heavy and softly
// hung, which keeps it out of the gait.
std::int32_t addNose(Editor& ed, double x, double y, const Numbers& behind, std::int32_t color, Nose nose);

// Spokes lengthen one after the other, so that the heavy hub leans out over the floor's side of the rim
// in step with the clock: the wheel keeps falling forward, a turn of it to a turn of the phase.
struct Wheel {
    std::int32_t hub;
    Numbers rim;
};
Wheel addWheel(Editor& ed, double x, double y, double radius, std::int32_t color, float hubMass);

// A striped flag on a pole, shaken there; the wind carries the waves along it. (x, y) is its upper corner.
struct Fabric {
    float mass, k;
    double beat;         // degrees
    float weak = k / 5;  // of the diagonals
    int columns = 12;
    double step = 260;  // twips between its threads
};
void addFlag(Editor& ed, double x, double y, const std::int32_t (&stripes)[3], const Fabric& fabric);

// On a pinned hub that turns it; the hub is the node before the rim's first.
Numbers spokedWheel(Editor& ed, double x, double y, double radius, std::int32_t color, float rotate);

// A body of triangles on two pairs of feet, about 2400 twips long; (x, y) is its first hip.
void addBench(Editor& ed, double x, double y);
// A long truss on three pairs of feet, a heavy nose at either end.
void addWalker(Editor& ed, double x, double y, Nose nose = {7, 1.6F});
// The noses of one that comes to walls for ever: the body rams them away from the wall, and no wave of its
// gait brings them back before it has left.
inline constexpr Nose ram{17, 12};

}  // namespace zentrik::zoo
