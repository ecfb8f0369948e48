#include "model/prefetch.h"
#include "model/store.h"
#include "sim/forces.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

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
[[gnu::noinline]] float animatorFactor(const Link& link, const AnimatorClock& clock) {
    if (!clock.running) return 1;
    const double angle = link.Angle * degreesToRadians;
    if (!(real(angle) < clock.reached)) return 1;
    return real(link.Force * std::sin(clock.phase - angle) + 1);
}

// Springs side by side. One spring alone waits for its square root, then for its division, then for the
// memory of its nodes. In groups they pass three stages that need not wait for each other: gather, solve
// and hand out. Solving is short loops over columns, which vectorise. A lane without a link holds whatever
// the last one left in it.
struct alignas(32) SpringGroup {
    static constexpr std::size_t size = 8;
    template <class T>
    using Column = std::array<T, size>;

    Column<Link*> link;
    Column<float> dx, dy;  // from N2 to N1, twips
    Column<float> rest, k, length;
    Column<float> factor;  // 1 wherever gathering finds no animator: solving puts it back
    Column<float> fx, fy;
};

// The groups on their way. A stage works on what the stage before it finished two groups ago: about as
// far as the processor looks ahead.
class Belt {
public:
    static constexpr std::size_t distance = 2;

    explicit Belt(Link& nowhere) {
        for (SpringGroup& group : groups_) {
            group = {};
            group.link.fill(&nowhere);
            group.factor.fill(1);
        }
    }
    SpringGroup& at(std::size_t n) { return groups_[n % groups_.size()]; }

private:
    std::array<SpringGroup, 8> groups_;
    static_assert(std::tuple_size_v<decltype(groups_)> > 2 * distance);
};

// What the stages work on.
struct Work {
    const Node* nodes;
    std::uint32_t lastNode;
    const Link* links;
    ForcePoint* points;
    AnimatorClock clock;
    Link* nowhere;  // stands for a link that is not there, and pulls at slot 0, which is no node
    std::vector<std::int32_t>* barriers;
};

[[gnu::noinline]] void noteBarrier(const Link& link, const Work& work) {
    work.barriers->push_back(static_cast<std::int32_t>(&link - work.links));
}

[[gnu::always_inline]] inline bool isThere(const Link& link, const Work& work) {
    const auto exists = [&](std::int32_t i) { return static_cast<std::uint32_t>(i) - 1 < work.lastNode; };
    if (!link.Used) [[unlikely]]
        return false;
    return exists(link.N1) && exists(link.N2);
}

// The points hold exact places only where these are small.
template <bool placesAreSmall>
[[gnu::always_inline]] inline Float2 extent(const Link& link, const Work& work) {
    if constexpr (placesAreSmall)
        return work.points[link.N1].place - work.points[link.N2].place;
    else
        return difference(work.nodes[link.N1], work.nodes[link.N2]);
}

template <bool placesAreSmall>
[[gnu::always_inline]] inline void gather(Link& link, const Work& work, SpringGroup& group, std::size_t m) {
    prefetchAhead<Needed::once>(link, 32);
    if (!isThere(link, work)) [[unlikely]] {
        group.link[m] = work.nowhere;
        return;
    }
    if (link.Barrier) [[unlikely]]
        noteBarrier(link, work);
    const Float2 d = extent<placesAreSmall>(link, work);
    group.link[m] = &link;
    group.dx[m] = d[0];
    group.dy[m] = d[1];
    group.rest[m] = link.RestLength;
    if (link.Animator) [[unlikely]]
        group.factor[m] = animatorFactor(link, work.clock);
    group.k[m] = link.k;
}

// Fills a group with at most as many links; lanes beyond the last one lead nowhere.
template <bool placesAreSmall>
[[gnu::always_inline]] inline void gather(std::span<Link> links, const Work& work, SpringGroup& group) {
    if (links.size() == SpringGroup::size) {
#pragma GCC unroll 8
        for (std::size_t m = 0; m < SpringGroup::size; ++m) gather<placesAreSmall>(links[m], work, group, m);
    } else {
        group.link.fill(work.nowhere);
        for (std::size_t m = 0; m < links.size(); ++m) gather<placesAreSmall>(links[m], work, group, m);
    }
}

// Ends at the same place give no direction to pull in: such a link exerts nothing, whether links of
// length zero are allowed or not. (Other lengths are at least 1 twip.) Unrolled loops would not vectorise.
[[gnu::always_inline]] inline void solve(SpringGroup& g) {
    alignas(32) SpringGroup::Column<float> strength, divisor;
#pragma GCC unroll 1
    for (std::size_t m = 0; m < SpringGroup::size; ++m) {
        const double dx = wide(g.dx[m]), dy = wide(g.dy[m]);
        const float length = real(std::sqrt(dx * dx + dy * dy));
        const double rest = wide(g.factor[m]) * g.rest[m];
        const float F = real((length - rest) * g.k[m] * 100);
        g.factor[m] = 1;
        g.length[m] = length;
        strength[m] = length > 0 ? F : 0;
        divisor[m] = length > 1 ? length : 1;
    }
#pragma GCC unroll 1
    for (std::size_t m = 0; m < SpringGroup::size; ++m) {
        g.fx[m] = real(wide(g.dx[m]) / divisor[m] * strength[m]);
        g.fy[m] = real(wide(g.dy[m]) / divisor[m] * strength[m]);
    }
}

// Hands the forces to the nodes, link by link in index order: the order decides how sums round.
[[gnu::always_inline]] inline void handOut(const SpringGroup& group, ForcePoint* points) {
#pragma GCC unroll 8
    for (std::size_t m = 0; m < SpringGroup::size; ++m) {
        Link& link = *group.link[m];
        const Float2 force{group.fx[m], group.fy[m]};
        link.CurrentLength = group.length[m];
        points[link.N1].force -= force;
        points[link.N2].force += force;
    }
}

template <bool placesAreSmall>
[[gnu::always_inline]] inline void run(std::span<Link> links, const Work& work) {
    Belt belt(*work.nowhere);
    const std::size_t groups = (links.size() + SpringGroup::size - 1) / SpringGroup::size;
    for (std::size_t n = 0; n < groups + 2 * Belt::distance; ++n) {
        const std::size_t count = std::min(links.size(), SpringGroup::size);
        gather<placesAreSmall>(links.first(count), work, belt.at(n + 2 * Belt::distance));
        solve(belt.at(n + Belt::distance));
        handOut(belt.at(n), work.points);
        links = links.subspan(count);
    }
}

}  // namespace

ZENTRIK_WIDE_LOOP void applySprings(Editor& ed, ForcePoints& points, bool placesAreSmall,
                                    std::vector<std::int32_t>& barriers) {
    const double phase = wide(ed.DeltaAngle) * ed.AnimationTime;
    const AnimatorClock clock{ed.buttons.animation, phase, std::fabs(real(phase))};
    Link nowhere;
    const Work work{.nodes = ed.Nodes.data(),
                    .lastNode = static_cast<std::uint32_t>(lastNode(ed)),
                    .links = ed.Links.data(),
                    .points = points.data(),
                    .clock = clock,
                    .nowhere = &nowhere,
                    .barriers = &barriers};
    const auto links = std::span(ed.Links).subspan(1);
    if (placesAreSmall)
        run<true>(links, work);
    else
        run<false>(links, work);
}

}  // namespace zentrik
