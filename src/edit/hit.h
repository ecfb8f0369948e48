#pragma once
// What lies under a point of the scene, and stepping through nodes and links. A node answers within
// HitRadius twips of its centre in x and in y, a link within HitRadius of its midpoint; where several
// answer, the lowest number wins. Points are in twips.

#include "model/editor.h"

#include <vector>

namespace zentrik {

// The node or link at a point, none where there is nothing. One scan over the slots, no allocation.
std::int32_t nodeAtPoint(const Editor& ed, float X, float Y);
std::int32_t linkAtPoint(const Editor& ed, float X, float Y);

// nodeAtPoint for many points at once, in O((nodes + points) log(nodes + points)).
std::vector<std::int32_t> nodesAtPoints(const Editor& ed, const std::vector<PointF>& points);

// The same questions from the pointer: status panel 5 describes what was found. iOver: the number, or
// none.
bool OverNode(Editor& ed, float X, float Y, std::int32_t& iOver);
bool OverLink(Editor& ed, float X, float Y, std::int32_t& iOver);

// Status panel 5's text about a link.
std::string linkText(const Editor& ed, std::int32_t i);

// Select the next used node or link by number, or the one before, wrapping round.
void NextNode(Editor& ed);
void NextLink(Editor& ed);
void PreviousNode(Editor& ed);
void PreviousLink(Editor& ed);

}  // namespace zentrik
