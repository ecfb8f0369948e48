#pragma once
// What can be said of a whole model in a few numbers. Lengths are twips, times the clock's time units;
// y grows downwards. Energies are mass x twips^2 / time unit^2; they are those of the nodes that can move.

#include "model/editor.h"

namespace zentrik {

struct Place {
    double x = 0, y = 0;
};

// Of all used nodes, weighted by their masses; by their number where the masses come to 0 or less.
Place centreOfMass(const Editor& ed);

// 1/2 m v^2 of every free node.
double kineticEnergy(const Editor& ed);
// 1/2 K (length - rest length)^2 of every link with both ends, K being 100 k, the animators' rest lengths
// as the clock has them.
double springEnergy(const Editor& ed);
// m g h of every free node, g being 10000 times the setting, h the height above the line on which nodes
// come to rest on the floor. What nodes attract each other with is not in it.
double gravityEnergy(const Editor& ed);

// Of the fastest free node, twips a time unit.
double greatestSpeed(const Editor& ed);

}  // namespace zentrik
