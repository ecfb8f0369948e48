#include "model/store.h"
#include "sim/forces.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zentrik {

namespace {

constexpr double degreesToRadians = 0.01745;

// What all animators share in one step.
struct AnimatorClock {
    bool running;
    double phase;  // radians
    float reached;
};

// Factor by which an animator stretches its link's rest length; it starts once the clock's phase has
// passed its own.
float animatorFactor(const Link& link, const AnimatorClock& clock) {
    if (!link.Animator || !clock.running) return 1;
    const double angle = link.Angle * degreesToRadians;
    if (!(real(angle) < clock.reached)) return 1;
    return real(link.Force * std::sin(clock.phase - angle) + 1);
}

double drivenRestLength(const Link& link, const AnimatorClock& clock) {
    return link.Animator ? wide(animatorFactor(link, clock)) * link.RestLength : wide(link.RestLength);
}

}  // namespace

void applySprings(Editor& ed, ForcePoints& points, bool placesAreSmall, std::vector<std::int32_t>& barriers) {
    const double phase = wide(ed.DeltaAngle) * ed.AnimationTime;
    const AnimatorClock clock{ed.buttons.animation, phase, std::fabs(real(phase))};
    const std::int32_t last = lastLink(ed);
    Link* const links = ed.Links.data();
    ForcePoint* const at = points.data();
    const auto nodes = static_cast<std::uint32_t>(lastNode(ed));
    for (std::int32_t j = 1; j <= last; ++j) {
        Link& link = links[j];
        __builtin_prefetch(&link + 16, 1);
        if (!link.Used) continue;
        const auto n1 = static_cast<std::uint32_t>(link.N1), n2 = static_cast<std::uint32_t>(link.N2);
        if (n1 - 1 >= nodes || n2 - 1 >= nodes) continue;
        if (link.Barrier) barriers.push_back(j);
        ForcePoint& a = at[n1];
        ForcePoint& b = at[n2];
        const Double2 d = placesAreSmall ? wide(a.place - b.place) : wide(round32(wide(a.place) - wide(b.place)));
        const Double2 dd = d * d;
        const float length = real(std::sqrt(dd[0] + dd[1]));
        link.CurrentLength = length;
        const double rest = drivenRestLength(link, clock);
        const float F = real((length - rest) * link.k * 100);
        const double divisor = length > 0 ? wide(length) : 1;
        const Float2 force = round32(d / divisor * wide(F));
        a.force -= force;
        b.force += force;
    }
}

}  // namespace zentrik
