#pragma once
// Models for tests, benchmarks and sample projects alike.

#include "model/editor.h"

#include <initializer_list>
#include <utility>

namespace zentrik::scenes {

// Adds a standard node without asking for chance; returns its number.
std::int32_t addNode(Editor& ed, std::int32_t x, std::int32_t y);
// Adds a link with its present length as rest length; returns its number.
std::int32_t addLink(Editor& ed, std::int32_t n1, std::int32_t n2, float k = 5);

// The same for many: nodes by their places, links by their ends.
using Pairs = std::initializer_list<std::pair<std::int32_t, std::int32_t>>;
void addNodes(Editor& ed, Pairs places);
void addLinks(Editor& ed, Pairs ends);

// A lattice of columns x rows nodes, joined to the right, below and both diagonals (about four links
// a node), its first node at (left, top).
void addLattice(Editor& ed, int columns, int rows, int spacing, int left, int top);

// An editor with a scene of 1920 x 1080 pixels.
Editor fullScreen();

// The same with a lattice of about `nodes` nodes.
Editor latticeOf(int nodes);

}  // namespace zentrik::scenes
