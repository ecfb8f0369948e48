#include "random_model.h"

#include "model/store.h"

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <random>

namespace zentrik {

namespace {

// The standard fixes the generator's numbers, but not those of its distributions.
class Dice {
public:
    explicit Dice(std::uint32_t seed) : generator_(seed) {}
    // 0 to count - 1; 0 where there is no choice.
    std::int32_t below(std::int32_t count) {
        const std::uint32_t number = static_cast<std::uint32_t>(generator_());
        return count <= 0 ? 0 : static_cast<std::int32_t>(number % static_cast<std::uint32_t>(count));
    }
    std::int32_t between(std::int32_t low, std::int32_t high) { return low + below(high - low + 1); }
    float real(float low, float high) {
        return low + (high - low) * static_cast<float>(below(1 << 20)) * 0x1p-20F;
    }
    bool percent(std::int32_t chance) { return below(100) < chance; }
    template <class T>
    T oneOf(std::initializer_list<T> values) {
        return values.begin()[below(static_cast<std::int32_t>(values.size()))];
    }

private:
    std::mt19937 generator_;
};

enum class Places { scene, coarse, narrow, world };

std::int32_t place(Dice& dice, Places places) {
    constexpr std::int32_t last = std::numeric_limits<std::int32_t>::max();
    switch (places) {
        case Places::scene:
            return dice.between(-200, 12000);
        case Places::coarse:
            return dice.between(0, 12) * 900;  // many links level or upright
        case Places::narrow:
            return dice.between(500, 503);  // many nodes at one place
        case Places::world:
            break;
    }
    return dice.oneOf({last, -last, -last - 1, last - 3, 0, dice.below(last), -dice.below(last)});
}

void addNodes(Editor& ed, Dice& dice, std::int32_t count) {
    const Places places = dice.percent(40)   ? Places::scene
                          : dice.percent(70) ? Places::coarse
                          : dice.percent(60) ? Places::narrow
                                             : Places::world;
    const std::int32_t attracting = dice.oneOf({0, 0, 5, 30, 100});
    const std::int32_t driving = dice.oneOf({0, 20, 100});
    const std::int32_t locked = dice.oneOf({0, 15, 60});
    const bool heavy = dice.percent(70);
    for (std::int32_t i = 0; i < count; ++i) {
        Node n;
        n.Used = dice.percent(90);
        n.X = place(dice, places);
        n.Y = place(dice, places);
        n.Vx = dice.percent(60) ? 0 : dice.real(-9000, 9000);
        n.Vy = dice.percent(60) ? 0 : dice.real(-9000, 9000);
        n.Fx = dice.percent(80) ? 0 : dice.real(-1e5F, 1e5F);
        n.Mass = heavy ? dice.oneOf({1.0F, 1.0F, 5.5F, 1e20F}) : dice.oneOf({1.0F, 0.3F, -2.0F, 1e-6F});
        if (dice.below(2000) == 0) n.Mass = 0;
        n.Locked = dice.percent(locked);
        n.Gravity = dice.percent(attracting) ? dice.real(-2, 8) : 0;
        if (dice.percent(3)) n.Gravity *= dice.oneOf({1e-17F, 1e-30F, 1e-38F, 1e30F});
        n.Vxo = dice.real(-400, 400);
        n.Vyo = dice.real(-3, 3);
        n.Rotate = dice.percent(driving) ? dice.real(-2, 2) : 0;
        n.Trigger = dice.percent(95) ? none : dice.between(-2, count + 2);
        appendNode(ed, n);
    }
}

void addLinks(Editor& ed, Dice& dice, std::int32_t count) {
    const std::int32_t barriers = dice.oneOf({0, 10, 50});
    const std::int32_t last = lastNode(ed);
    const bool allThere = dice.percent(60);
    for (std::int32_t j = 0; j < count; ++j) {
        Link link;
        link.Used = dice.percent(92);
        link.N1 = dice.between(allThere ? 1 : -1, allThere ? last : last + 1);
        link.N2 = dice.between(allThere ? 1 : -1, allThere ? last : last + 1);
        if (!allThere && dice.below(100) == 0) link.N1 = std::numeric_limits<std::int32_t>::min();
        if (allThere && dice.percent(50)) link.N2 = std::min(last, link.N1 + 1);
        link.RestLength = dice.real(0, 3000);
        link.k = dice.oneOf({0.0F, 0.5F, 0.5F, 2.0F, -0.1F});
        link.Animator = dice.percent(30);
        link.Angle = dice.real(-20, 380);
        link.Force = dice.real(-0.5F, 0.5F);
        link.Barrier = dice.percent(barriers) && (link.N1 != link.N2 || dice.percent(10));
        appendLink(ed, link);
    }
}

void chooseSettings(Editor& ed, Dice& dice) {
    using Limits = std::numeric_limits<std::int32_t>;
    ed.Gravity = dice.oneOf({0.0F, 1.0F, -0.7F});
    ed.Friction = dice.oneOf({0.0F, 0.2F, 1.0F, 3.0F});
    ed.Viscosity = dice.oneOf({0.0F, 0.0F, 0.3F, 2.0F, -0.1F});
    ed.LeftWind = dice.oneOf({0.0F, 0.0F, 1.5F, -4.0F});
    ed.Bounce = dice.oneOf({0.5F, 0.9F, 0.0F, -1.0F});
    ed.TimeInterval = dice.oneOf({20.0F, 20.0F, 7.0F, 100.0F, 0.0F, -20.0F});
    ed.DeltaAngle = dice.oneOf({0.1F, 1.0F, -6.0F});
    ed.NodeRadius = dice.oneOf({60, 60, 60, 300, 900, 900, 3000, 0, -200});
    if (dice.percent(2)) ed.NodeRadius = dice.oneOf({Limits::min(), Limits::max()});
    ed.AnimationTime = dice.percent(40) ? 0 : dice.real(-20, 20);
    ed.TimeDirection = dice.oneOf({1, -1});
    ed.Cycles = dice.between(-1, 10);
    ed.InitialVelocityPending = dice.percent(50);
    ed.sceneWidth = dice.oneOf({28800, 9000, 9000, 400, 0});
    ed.sceneHeight = dice.oneOf({16200, 9000, 9000, 400, 0});
    ed.SelectedNode = dice.oneOf({none, 1, lastNode(ed), dice.between(1, lastNode(ed) + 2)});
    ed.timerFireWorks.enabled = dice.percent(15);
    ed.buttons.slow = dice.percent(15);
    ed.buttons.animation = dice.percent(70);
    for (bool Marks::*mark :
         {&Marks::mnuPersistentFireworks, &Marks::mnuIgnoreBarriers, &Marks::mnuWalls, &Marks::mnuCeiling,
          &Marks::mnuUseDirectional, &Marks::mnuReverseModel, &Marks::mnuRandom, &Marks::mnuAllowZero,
          &Marks::mnuDisplayAngleManager, &Marks::mnuDisplayPath})
        ed.marks.*mark = dice.percent(50);
}

}  // namespace

Editor randomModel(std::uint32_t seed) {
    Dice dice(seed);
    Editor ed;
    ed.chance.seedSource = [] { return std::uint64_t{7}; };
    const bool large = dice.percent(2);
    const std::int32_t nodes = large ? dice.between(130, 220) : dice.between(0, 20);
    addNodes(ed, dice, nodes);
    const std::int32_t density = dice.oneOf({0, 1, 3});
    addLinks(ed, dice, nodes * density + dice.between(0, 3));
    chooseSettings(ed, dice);
    ed.buttons.start = ed.Timer1.enabled = true;
    return ed;
}

}  // namespace zentrik
