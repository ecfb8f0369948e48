#pragma once
// The force stages of one step, in the order in which the step runs them.

#include "model/editor.h"
#include "sim/contacts/pair.h"

#include <vector>

namespace zentrik {

// A node as the springs see it: small enough that a large model stays in the processor's cache.
struct ForcePoint {
    Float2 place;  // twips; rounded where the step's places are not small
    Float2 force;
};
using ForcePoints = std::vector<ForcePoint>;  // by node number
inline ForcePoint& pointAt(ForcePoints& points, std::int32_t i) {
    return points[static_cast<std::size_t>(i)];
}
inline const ForcePoint& pointAt(const ForcePoints& points, std::int32_t i) {
    return points[static_cast<std::size_t>(i)];
}

// Each node drives the nodes linked to it by its Rotate, at right angles to the link.
void applyRotationalDrive(const Editor& ed, ForcePoints& points);

// What all animators share in one step: whether they run, and the clock's phase, radians.
struct AnimatorClock {
    bool running;
    double phase;
    float reached;
};
AnimatorClock animatorClock(const Editor& ed);

// Factor by which an animator stretches its link's rest length; it starts once the clock's phase has
// passed its own.
[[gnu::noinline]] float animatorFactor(const Link& link, const AnimatorClock& clock);

// The length at which a link is at rest then, twips.
inline double restLength(const Link& link, const AnimatorClock& clock) {
    return link.Animator ? wide(animatorFactor(link, clock)) * link.RestLength : wide(link.RestLength);
}
// With which a link of this length pulls its ends together; below 0 it pushes them apart.
inline float springForce(const Link& link, float length, double rest) {
    return real((length - rest) * link.k * 100);
}

// Springs and animators of all links, in index order; measures every link's CurrentLength. Appends the
// used barrier links with both ends to barriers. placesAreSmall: the differences of all coordinates are
// exact as 32-bit reals, so that the points will do instead of the nodes.
void applySprings(Editor& ed, ForcePoints& points, bool placesAreSmall, std::vector<std::int32_t>& barriers);

}  // namespace zentrik
