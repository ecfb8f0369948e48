#pragma once
// Models at rest that touch a wall, and models of barriers: what costs most where contacts are dear.

#include "model/editor.h"

namespace zentrik::scenes {

// A lattice whose first column lies at the left wall.
Editor latticeAtWall(int nodes);
// Nodes without links, all at the left wall.
Editor looseAtWall(int nodes);
// One chain of springs, all of it at the left wall.
Editor chainAlongWall(int nodes);
// Loose nodes all over the scene; the first ones are joined in pairs by short barriers.
Editor freeBarriers(int nodes, int barriers);

}  // namespace zentrik::scenes
