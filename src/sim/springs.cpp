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

// A run of springs side by side. One spring alone waits for its square root, then for its division, then
// for the memory of its nodes; short loops over many keep the processor busy, and vectorise.
struct SpringBatch {
    static constexpr std::size_t size = 32;
    template <class T>
    using Column = std::array<T, size>;

    Column<Link*> link{};
    Column<double> dx{}, dy{};  // from N2 to N1, twips
    Column<double> rest{};
    Column<float> k{}, length{}, strength{}, fx{}, fy{};
};

void gather(SpringBatch& batch, std::size_t m, Link& link, const ForcePoints& points,
            const AnimatorClock& clock) {
    const Double2 d = pointAt(points, link.N1).place - pointAt(points, link.N2).place;
    batch.link[m] = &link;
    batch.dx[m] = d[0];
    batch.dy[m] = d[1];
    batch.rest[m] = drivenRestLength(link, clock);
    batch.k[m] = link.k;
}

ZENTRIK_WIDE_LOOP void roundDifferences(SpringBatch& batch) {
    for (std::size_t m = 0; m < SpringBatch::size; ++m) {
        batch.dx[m] = wide(real(batch.dx[m]));
        batch.dy[m] = wide(real(batch.dy[m]));
    }
}

ZENTRIK_WIDE_LOOP void measure(SpringBatch& batch) {
    for (std::size_t m = 0; m < SpringBatch::size; ++m)
        batch.length[m] = real(std::sqrt(batch.dx[m] * batch.dx[m] + batch.dy[m] * batch.dy[m]));
}

// Ends at the same place give no direction to pull in: such a link exerts nothing, whether links of
// length zero are allowed or not.
ZENTRIK_WIDE_LOOP void stretch(SpringBatch& batch) {
    for (std::size_t m = 0; m < SpringBatch::size; ++m) {
        const float strength = real((batch.length[m] - batch.rest[m]) * batch.k[m] * 100);
        batch.strength[m] = batch.length[m] > 0 ? strength : 0;
    }
}

ZENTRIK_WIDE_LOOP void pull(SpringBatch& batch) {
    for (std::size_t m = 0; m < SpringBatch::size; ++m) {
        const double length = wide(batch.length[m] > 1 ? batch.length[m] : 1);  // 0 or at least 1 twip
        batch.fx[m] = real(batch.dx[m] / length * batch.strength[m]);
        batch.fy[m] = real(batch.dy[m] / length * batch.strength[m]);
    }
}

// Hands the forces to the nodes, link by link in index order: the order decides how sums round.
void scatter(const SpringBatch& batch, std::size_t count, ForcePoints& points) {
    for (std::size_t m = 0; m < count; ++m) {
        Link& link = *batch.link[m];
        const Float2 force{batch.fx[m], batch.fy[m]};
        link.CurrentLength = batch.length[m];
        pointAt(points, link.N1).force -= force;
        pointAt(points, link.N2).force += force;
    }
}

void exert(SpringBatch& batch, std::size_t count, ForcePoints& points, bool placesAreSmall) {
    if (!placesAreSmall) roundDifferences(batch);
    measure(batch);
    stretch(batch);
    pull(batch);
    scatter(batch, count, points);
}

}  // namespace

void applySprings(Editor& ed, ForcePoints& points, bool placesAreSmall, std::vector<std::int32_t>& barriers) {
    const double phase = wide(ed.DeltaAngle) * ed.AnimationTime;
    const AnimatorClock clock{ed.buttons.animation, phase, std::fabs(real(phase))};
    SpringBatch batch;
    std::size_t count = 0;
    const std::int32_t last = lastLink(ed);
    forEachLink(ed, [&](std::int32_t j, Link& link) {
        __builtin_prefetch(&linkAt(ed, std::min(j + 16, last)), 1);  // a large model's are far away
        if (link.Barrier) barriers.push_back(j);
        gather(batch, count++, link, points, clock);
        if (count < SpringBatch::size) return;
        exert(batch, count, points, placesAreSmall);
        count = 0;
    });
    if (count > 0) exert(batch, count, points, placesAreSmall);
}

}  // namespace zentrik
