#pragma once
// Connected objects: a node together with every node and link reachable from it over used links.

#include "model/editor.h"

namespace zentrik {

// For every node slot the number of its object: the lowest node number in it. O(nodes + links).
std::vector<std::int32_t> connectedObjects(const Editor& ed);

// Marks one object's nodes and links, and clears every other mark.
void markObject(Editor& ed, const std::vector<std::int32_t>& objects, std::int32_t object);

// Marks the object of node iSel, or of link iSelLink's first end when iSel is -1 (iSel then becomes
// that node). An iSel that names no slot marks nothing. O(nodes + links).
void MarkConnectedNodes(Editor& ed, std::int32_t& iSel, std::int32_t iSelLink);

}  // namespace zentrik
