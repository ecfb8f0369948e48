#include "basics/angles.h"
#include "basics/prefetch.h"
#include "model/store.h"
#include "sim/forces.h"

#include <cmath>

namespace zentrik {

static_assert(sizeof(Link) == 64, "a link fills one cache line; a field more would double it");

AnimatorClock animatorClock(const Editor& ed) {
    const double phase = wide(ed.DeltaAngle) * ed.AnimationTime;
    return {ed.buttons.animation, phase, std::fabs(real(phase))};
}

float animatorFactor(const Link& link, const AnimatorClock& clock) {
    const double angle = link.Angle * degreesToRadians;
    if (!clock.running || !(real(angle) < clock.reached)) return 1;
    return real(link.Force * std::sin(clock.phase - angle) + 1);
}

void applySprings(Editor& ed, ForcePoints& points, bool placesAreSmall, std::vector<std::int32_t>& barriers) {
    const AnimatorClock clock = animatorClock(ed);
    forEachLink(ed, [&](std::int32_t j, Link& link) {
        prefetchAhead<Needed::once>(link);
        ForcePoint& a = pointAt(points, link.N1);
        ForcePoint& b = pointAt(points, link.N2);
        const Double2 d =
            wide(placesAreSmall ? a.place - b.place : difference(nodeAt(ed, link.N1), nodeAt(ed, link.N2)));
        const float length = real(std::sqrt(d[0] * d[0] + d[1] * d[1]));
        const double F = wide(springForce(link, length, restLength(link, clock)));
        link.CurrentLength = length;
        if (link.Barrier) barriers.push_back(j);
        // Ends at the same place give no direction to pull in.
        if (length == 0) return;
        const Float2 force = round32(d / length * F);
        a.force -= force;
        b.force += force;
    });
}

}  // namespace zentrik
