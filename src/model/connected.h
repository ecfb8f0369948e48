#pragma once
// Connected objects: a node together with every node and link reachable from it over used links.

#include "model/editor.h"

namespace zentrik {

// Marks the object of node iSel, or of link iSelLink's first end when iSel is -1 (iSel then becomes
// that node), in the Res3 fields; clears every other mark. An iSel that names no slot marks nothing.
// O(nodes + links).
void MarkConnectedNodes(Editor& ed, std::int32_t& iSel, std::int32_t iSelLink);

}  // namespace zentrik
