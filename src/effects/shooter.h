#pragma once
// A shooter node fires cannonballs: free nodes that start at its place. It aims away from its trigger
// node, or without one takes the global direction and velocity.

#include "model/editor.h"

namespace zentrik {

class Host;

// Fires the selected shooter, or else the one fired last. Only while the animation runs.
void mnuFire_Click(Editor& ed, Host& host);

void mnuShooterDirection_Click(Editor& ed, Host& host);  // degrees, 0 to 360
void mnuShooterVelocity_Click(Editor& ed, Host& host);   // twips per time unit, above -30000 to 30000

}  // namespace zentrik
