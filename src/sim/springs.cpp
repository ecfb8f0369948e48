#include "model/store.h"
#include "sim/forces.h"
#include "sim/prefetch.h"

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
    if (!clock.running) return 1;
    const double angle = link.Angle * degreesToRadians;
    if (!(real(angle) < clock.reached)) return 1;
    return real(link.Force * std::sin(clock.phase - angle) + 1);
}

// A run of springs side by side. One spring alone waits for its square root, then for its division, then
// for the memory of its nodes; short loops over many keep the processor busy, and vectorise. All of them
// are compiled into applySprings, which is there once for each width of vectors.
struct SpringBatch {
    static constexpr std::size_t size = 32;
    template <class T>
    using Column = std::array<T, size>;
    template <class T>
    using PairColumn = std::array<T, 2 * size>;  // x and y take turns

    Column<Link*> link{};
    PairColumn<float> d{};  // from N2 to N1, twips
    Column<float> rest{}, factor{}, k{}, length{};
    PairColumn<float> force{};
};

// Exact where places are small: whole numbers then have no more digits than a 32-bit real.
[[gnu::always_inline]] inline Float2 difference(const ForcePoint& a, const ForcePoint& b,
                                                bool placesAreSmall) {
    if (placesAreSmall) return __builtin_convertvector(a.place - b.place, Float2);
    return round32(wide(a.place) - wide(b.place));
}

// Ends at the same place give no direction to pull in: such a link exerts nothing, whether links of
// length zero are allowed or not. (Other lengths are at least 1 twip.)
[[gnu::always_inline]] inline void solve(SpringBatch& batch) {
    for (std::size_t m = 0; m < SpringBatch::size; ++m) {
        const double dx = wide(batch.d[2 * m]), dy = wide(batch.d[2 * m + 1]);
        const float length = real(std::sqrt(dx * dx + dy * dy));
        const double rest = wide(batch.factor[m]) * batch.rest[m];
        const float F = real((length - rest) * batch.k[m] * 100);
        const float strength = length > 0 ? F : 0;
        const double divisor = wide(length > 1 ? length : 1);
        batch.length[m] = length;
        batch.force[2 * m] = real(dx / divisor * strength);
        batch.force[2 * m + 1] = real(dy / divisor * strength);
    }
}

// Hands the forces to the nodes, link by link in index order: the order decides how sums round.
[[gnu::always_inline]] inline void scatter(const SpringBatch& batch, std::size_t count, ForcePoint* points) {
    for (std::size_t m = 0; m < count; ++m) {
        Link& link = *batch.link[m];
        const Float2 force = pairAt(&batch.force[2 * m]);
        link.CurrentLength = batch.length[m];
        points[link.N1].force -= force;
        points[link.N2].force += force;
    }
}

[[gnu::always_inline]] inline void exert(SpringBatch& batch, std::size_t count, ForcePoint* points) {
    solve(batch);
    scatter(batch, count, points);
}

}  // namespace

ZENTRIK_WIDE_LOOP void applySprings(Editor& ed, ForcePoints& points, bool placesAreSmall,
                                    std::vector<std::int32_t>& barriers) {
    const double phase = wide(ed.DeltaAngle) * ed.AnimationTime;
    const AnimatorClock clock{ed.buttons.animation, phase, std::fabs(real(phase))};
    const auto nodes = static_cast<std::uint32_t>(lastNode(ed));
    const auto exists = [nodes](std::int32_t i) { return static_cast<std::uint32_t>(i) - 1 < nodes; };
    ForcePoint* const at = points.data();
    Link* const links = ed.Links.data();
    const std::int32_t last = lastLink(ed);
    SpringBatch batch;
    std::size_t count = 0;
    for (std::int32_t j = 1; j <= last; ++j) {
        Link& link = links[j];
        prefetchAhead(link, 32);
        if (!link.Used || !exists(link.N1) || !exists(link.N2)) continue;
        if (link.Barrier) barriers.push_back(j);
        store(&batch.d[2 * count], difference(at[link.N1], at[link.N2], placesAreSmall));
        batch.link[count] = &link;
        batch.rest[count] = link.RestLength;
        batch.factor[count] = link.Animator ? animatorFactor(link, clock) : 1;
        batch.k[count] = link.k;
        if (++count < SpringBatch::size) continue;
        exert(batch, count, at);
        count = 0;
    }
    if (count > 0) exert(batch, count, at);
}

}  // namespace zentrik
