// The step: bit for bit what the plain loops give, on odd and on ordinary models, and the numbers that
// can be worked out by hand.

#include "sim/step.h"

#include "model/invariants.h"
#include "model/store.h"
#include "plain_step.h"
#include "random_model.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <numeric>

namespace zentrik {

namespace {

using scenes::addLink;
using scenes::addNode;

// The bits of a real; the two zeros and all not-a-numbers count as one each.
std::uint32_t bits(float value) {
    return std::isnan(value) ? 0x7FC00000U : std::bit_cast<std::uint32_t>(value + 0.0F);
}

std::vector<std::int64_t> stateOf(const Node& n) {
    return {n.Used,     n.X,        n.Y,        n.Locked,   n.Res3,        n.color,
            bits(n.Vx), bits(n.Vy), bits(n.Fx), bits(n.Fy), bits(n.Rotate)};
}
std::vector<std::int64_t> stateOf(const Link& link) {
    return {link.Used, link.Res3, link.Res1, link.Res4, bits(link.CurrentLength)};
}

template <class Record>
std::string difference(const std::vector<Record>& a, const std::vector<Record>& b, const char* kind) {
    for (std::size_t i = 0; i < a.size(); ++i) {
        const auto left = stateOf(a[i]), right = stateOf(b[i]);
        for (std::size_t field = 0; field < left.size(); ++field)
            if (left[field] != right[field])
                return kind + std::to_string(i) + " field " + std::to_string(field) + ": " +
                       std::to_string(left[field]) + " and " + std::to_string(right[field]);
    }
    return {};
}

// The first difference of two models that were stepped alike, or the empty text.
std::string difference(const Editor& a, const Editor& b) {
    if (a.panels != b.panels) return "panels " + a.panels[4] + " and " + b.panels[4];
    std::string text = difference(a.Nodes, b.Nodes, "node ") + difference(a.Links, b.Links, "link ");
    if (!text.empty()) return text;
    if (bits(a.AnimationTime) != bits(b.AnimationTime) || a.TimeDirection != b.TimeDirection) return "clock";
    if (a.InitialVelocityPending != b.InitialVelocityPending) return "initial velocities";
    if (a.SelectedNode != b.SelectedNode) return "selection";
    if (a.Timer1.enabled != b.Timer1.enabled || a.tips.start != b.tips.start) return "running state";
    if (bits(a.phaseShift) != bits(b.phaseShift)) return "phase strip";
    if (a.pathDots.size() != b.pathDots.size()) return "path";
    for (std::size_t i = 0; i < a.pathDots.size(); ++i)
        if (a.pathDots[i].x != b.pathDots[i].x || a.pathDots[i].y != b.pathDots[i].y ||
            a.pathDots[i].color != b.pathDots[i].color)
            return "path dot";
    return {};
}

Editor noForces() {
    Editor ed = scenes::fullScreen();
    ed.Gravity = 0;
    ed.marks.mnuIgnoreBarriers = true;
    return ed;
}

void steps(Editor& ed, int count) {
    while (count-- > 0) CalculatePositions(ed);
}

// FNV-1a over everything that moves.
std::uint64_t hashOf(const Editor& ed) {
    std::uint64_t hash = 0xcbf29ce484222325U;
    const auto take = [&](std::int64_t value) {
        hash = (hash ^ static_cast<std::uint64_t>(value)) * 0x100000001b3U;
    };
    for (const Node& node : ed.Nodes)
        for (const std::int64_t value : stateOf(node)) take(value);
    for (const Link& link : ed.Links) take(bits(link.CurrentLength));
    take(bits(ed.AnimationTime));
    return hash;
}

}  // namespace

TEST(Step, IsThePlainStepBitForBit) {
    int stepsDone = 0, stopped = 0, touched = 0, left = 0;
    std::vector<std::uint32_t> seeds(1500);
    std::iota(seeds.begin(), seeds.end(), 1U);
    seeds.push_back(29412);  // a barrier puts a node, and with it another barrier's end, where it meets it
    for (const std::uint32_t seed : seeds) {
        Editor fast = randomModel(seed);
        Editor slow = fast;
        for (int t = 0; t < 25; ++t) {
            const std::int32_t direction = slow.TimeDirection;
            CalculatePositions(fast);
            plain::step(slow);
            const std::string different = difference(fast, slow);
            ASSERT_EQ(different, "") << "model " << seed << ", step " << t;
            ++stepsDone;
            touched += direction != slow.TimeDirection;
            if (slow.Timer1.enabled) continue;
            ASSERT_EQ(brokenRule(fast), "") << "model " << seed << ", step " << t;
            left += slow.panels[4].find("left the world") != std::string::npos;
            ++stopped;
            break;
        }
    }
    // The models are worth comparing only if most of them run and all kinds of things happen to them.
    EXPECT_GT(stepsDone, 20000);
    EXPECT_GT(stopped, 100);
    EXPECT_GT(touched, 1000);
    EXPECT_GT(left, 20);
}

TEST(Step, GivesTheSameBitsInEveryBuild) {
    Editor ed = scenes::fullScreen();
    scenes::addLattice(ed, 12, 8, 400, 3000, 9000);
    scenes::addLattice(ed, 3, 3, 500, 12000, 2000);
    for (std::int32_t j = 5; j <= lastLink(ed); j += 7) {
        linkAt(ed, j).Animator = true;
        linkAt(ed, j).Angle = static_cast<float>(j % 360);
    }
    nodeAt(ed, 20).Rotate = 0.3F;
    nodeAt(ed, 50).Gravity = 0.02F;
    nodeAt(ed, 101).Gravity = -0.05F;
    const auto a = addNode(ed, 6000, 13000), b = addNode(ed, 15000, 13000);
    nodeAt(ed, a).Locked = nodeAt(ed, b).Locked = true;
    linkAt(ed, addLink(ed, a, b)).Barrier = true;
    ed.marks.mnuWalls = ed.marks.mnuCeiling = true;
    ed.buttons.animation = true;
    ed.DeltaAngle = 1;
    ed.Viscosity = 0.05F;
    ed.LeftWind = 0.4F;
    ed.Timer1.enabled = true;
    steps(ed, 500);
    EXPECT_EQ(ed.panels[4].find("stopped"), std::string::npos) << ed.panels[4];
    EXPECT_EQ(hashOf(ed), 6364381370040218869U);
}

TEST(Step, LetsANodeFall) {
    Editor ed = noForces();
    ed.Gravity = 1;
    addNode(ed, 1000, 1000);
    steps(ed, 1);
    EXPECT_EQ(ed.Nodes[1].Vy, 200.0F);
    EXPECT_EQ(ed.Nodes[1].Y, 1004);
    EXPECT_EQ(ed.panels[3], "Time:  0.020");
    ed.buttons.slow = true;
    ed.TimeInterval = 500;
    steps(ed, 1);
    EXPECT_EQ(ed.Nodes[1].Vy, 250.0F);
    EXPECT_EQ(ed.panels[3], "Time:  0.025");
}

TEST(Step, RoundsHalvesToTheEvenNeighbour) {
    Editor ed = noForces();
    ed.TimeInterval = 500;
    addNode(ed, 1000, 1001);
    ed.Nodes[1].Vx = ed.Nodes[1].Vy = 1;  // to 1000.5 and 1001.5
    steps(ed, 1);
    EXPECT_EQ(ed.Nodes[1].X, 1000);
    EXPECT_EQ(ed.Nodes[1].Y, 1002);
}

TEST(Step, AimsInitialVelocitiesOnceAtClockZero) {
    struct Case {
        float degrees, vx, vy;
    };
    for (const Case& c : {Case{90, 0, -2000}, Case{0, 2000, 0}, Case{180, -2000, 0}, Case{270, 0, 2000},
                          Case{45, 1414, -1414}, Case{315, 1414, 1414}, Case{-45, 1414, -1414},
                          Case{359.6F, 7, 7}, Case{360, 7, 7}}) {
        Editor ed = noForces();
        ed.marks.mnuUseDirectional = true;
        ed.InitialVelocityPending = true;
        const auto i = addNode(ed, 9000, 9000);
        nodeAt(ed, i).Vxo = c.degrees;
        nodeAt(ed, i).Vyo = 2;
        nodeAt(ed, i).Vx = nodeAt(ed, i).Vy = 7;
        nodeAt(ed, i).Locked = true;  // gets its velocity too, and stays
        steps(ed, 1);
        EXPECT_NEAR(ed.Nodes[1].Vx, c.vx, 2) << c.degrees;
        EXPECT_NEAR(ed.Nodes[1].Vy, c.vy, 2) << c.degrees;
        EXPECT_EQ(ed.Nodes[1].X, 9000);
        EXPECT_FALSE(ed.InitialVelocityPending);
    }
    Editor ed = noForces();
    ed.Nodes[addNode(ed, 9000, 9000)].Vxo = 3;
    ed.AnimationTime = 0.5F;
    ed.InitialVelocityPending = true;
    steps(ed, 1);
    EXPECT_EQ(ed.Nodes[1].Vx, 0.0F);
    EXPECT_TRUE(ed.InitialVelocityPending);
}

TEST(Step, PullsAndPushesAlongALink) {
    // 3-4-5: stretched by 100, so that F = 100 x 5 x 100 = 50,000 pulls the ends together.
    Editor ed = noForces();
    addNode(ed, 1000, 1000);
    addNode(ed, 1300, 1400);
    for (Node& node : ed.Nodes) node.Locked = true;
    addLink(ed, 1, 2);
    ed.Links[1].RestLength = 400;
    steps(ed, 1);
    EXPECT_EQ(ed.Links[1].CurrentLength, 500.0F);
    EXPECT_EQ(ed.Nodes[1].Fx, 30000.0F);
    EXPECT_EQ(ed.Nodes[1].Fy, 40000.0F);
    EXPECT_EQ(ed.Nodes[2].Fx, -30000.0F);
    // Locked nodes keep what they gather, and let it act once they are free.
    ed.Links[1].RestLength = 600;
    ed.Links[1].Used = false;
    ed.Nodes[1].Locked = false;
    steps(ed, 1);
    EXPECT_EQ(ed.Nodes[1].Vx, 600.0F);
    EXPECT_EQ(ed.Nodes[1].Fx, 0.0F);
}

TEST(Step, StartsAnAnimatorOnceTheClockPassedItsPhase) {
    Editor ed = noForces();
    addNode(ed, 1000, 1000);
    addNode(ed, 2000, 1000);
    for (Node& node : ed.Nodes) node.Locked = true;
    addLink(ed, 1, 2);
    ed.Links[1].Animator = true;
    ed.Links[1].Angle = 90;
    ed.buttons.animation = true;
    ed.DeltaAngle = 1;
    ed.AnimationTime = 1.545F;  // 1.565 after the step; its phase is 1.5705
    steps(ed, 1);
    EXPECT_EQ(ed.Nodes[1].Fx, 0.0F);
    steps(ed, 1);  // 1.585: rest length 1000 x (0.2 x sin 0.0145 + 1)
    EXPECT_NEAR(ed.Nodes[1].Fx, -500 * 1000 * 0.2 * std::sin(1.585 - 1.5705), 20);
    // The clock may run the other way.
    ed.Nodes[1].Fx = 0;
    ed.AnimationTime = -1.6F;
    ed.TimeDirection = -1;
    steps(ed, 1);
    EXPECT_GT(std::fabs(ed.Nodes[1].Fx), 100.0F);
}

TEST(Step, AttractsByTheSquareOfTheDistance) {
    Editor ed = noForces();
    ed.TimeInterval = 1000;
    addNode(ed, 1000, 1000);
    addNode(ed, 6000, 1000);
    addNode(ed, 6000, 1000);  // at the same place as the one that pulls
    ed.Nodes[2].Gravity = 5;
    ed.Nodes[2].Locked = true;
    steps(ed, 1);
    EXPECT_EQ(ed.Nodes[1].Vx, 200.0F);  // 10 x 5 / 0.5^2
    EXPECT_EQ(ed.Nodes[1].X, 1000 + 100 + 200);
    EXPECT_EQ(ed.Nodes[3].X, 6000);
}

TEST(Step, AttractsToTheLastBitWhereAShorterFormulaErrs) {
    // Strengths found by search, for which g 10000^2 dx / d^3 rounds to another 32-bit real.
    const std::pair<std::int32_t, std::uint32_t> cases[] = {
        {2819, 0x3FF2D3FBU}, {3064, 0x3FD7AA90U}, {3638, 0x3F8705F5U}};
    for (const auto& [dx, strength] : cases) {
        Editor fast = noForces();
        addNode(fast, 5000 + dx, 5000 + 2711);
        nodeAt(fast, addNode(fast, 5000, 5000)).Gravity = std::bit_cast<float>(strength);
        Editor slow = fast;
        CalculatePositions(fast);
        plain::step(slow);
        EXPECT_EQ(difference(fast, slow), "") << dx;
    }
}

TEST(Step, BouncesOffTheFloorAndStopsAtTheLine) {
    Editor ed = noForces();
    addNode(ed, 5000, ed.sceneHeight - 60 - 45);
    ed.Nodes[1].Vy = 400;
    ed.Nodes[1].Vx = 100;
    steps(ed, 1);
    EXPECT_EQ(ed.Nodes[1].Y, ed.sceneHeight - 105);
    EXPECT_EQ(ed.Nodes[1].Vy, -200.0F);
    EXPECT_EQ(ed.Nodes[1].Vx, 80.0F);
}

TEST(Step, TurnsAtAWall) {
    for (const bool reverse : {true, false}) {
        Editor ed = noForces();
        ed.marks.mnuWalls = true;
        ed.marks.mnuReverseModel = reverse;
        addNode(ed, 60, 1000);    // touches
        addNode(ed, 50, 2000);    // beyond the wall as well, of the same object
        addNode(ed, 4000, 2000);  // same object, clear of the wall
        addNode(ed, 30, 5000);    // another object beyond the wall
        addLink(ed, 1, 2, 0);
        addLink(ed, 2, 3, 0);
        for (std::int32_t i = 2; i <= 4; ++i) nodeAt(ed, i).Locked = true;
        for (Node& node : ed.Nodes) node.Vx = -10, node.Vy = 50, node.Rotate = 2;
        ed.RotationScale = 0;
        steps(ed, 1);
        EXPECT_EQ(ed.TimeDirection, -1);
        EXPECT_EQ(ed.Nodes[1].X, 60);
        EXPECT_EQ(ed.Nodes[1].Vx, 10.0F);
        EXPECT_EQ(ed.Nodes[1].Vy, 40.0F);
        EXPECT_EQ(ed.Nodes[2].X, reverse ? 50 : 60);
        EXPECT_EQ(ed.Nodes[2].Rotate, -2.0F);
        EXPECT_EQ(ed.Nodes[3].Vx, reverse ? 10.0F : -10.0F);
        EXPECT_EQ(ed.Nodes[4].Vx, reverse ? 10.0F : -10.0F);
        EXPECT_EQ(ed.Nodes[4].X, 30);
    }
}

TEST(Step, DeflectsAtLevelAndUprightBarriersOnly) {
    struct Case {
        std::int32_t x2, y2, x, y;
        float vx, vy;
        std::int32_t toX, toY;
    };
    // The barrier begins at (5000, 5000); r is 60.
    for (const Case& c : {Case{7000, 5000, 6000, 4970, 1, 10, 6000, 4940},     // from above
                          Case{7000, 5000, 6000, 5030, 1, -10, 6000, 5060},    // from below
                          Case{5000, 7000, 5030, 6000, -10, 1, 5060, 6000},    // from the right
                          Case{5000, 7000, 4960, 6000, 10, 1, 4940, 6000},     // from the left
                          Case{7000, 5001, 6000, 4990, 1, 10, 6000, 4990},     // slanted
                          Case{7000, 5000, 5000, 4990, 0, 10, 5000, 4990},     // above its end
                          Case{7000, 5000, 6000, 4930, 0, 10, 6000, 4930}}) {  // not near enough
        Editor ed = noForces();
        ed.marks.mnuIgnoreBarriers = false;
        ed.TimeInterval = 0;
        addNode(ed, 5000, 5000);
        addNode(ed, c.x2, c.y2);
        linkAt(ed, addLink(ed, 1, 2)).Barrier = true;
        ed.Nodes[1].Locked = ed.Nodes[2].Locked = true;
        Node& node = nodeAt(ed, addNode(ed, c.x, c.y));
        node.Vx = c.vx;
        node.Vy = c.vy;
        steps(ed, 1);
        EXPECT_EQ(ed.Nodes[3].X, c.toX) << c.x << " " << c.y;
        EXPECT_EQ(ed.Nodes[3].Y, c.toY) << c.x << " " << c.y;
        const bool sideways = c.toX != c.x, upright = c.toY != c.y;
        EXPECT_EQ(ed.Nodes[3].Vx, sideways ? -c.vx / 2 : upright ? c.vx / 2 : c.vx);
        EXPECT_EQ(ed.Nodes[3].Vy, upright ? -c.vy / 2 : sideways ? c.vy / 2 : c.vy);
    }
}

TEST(Step, EndsTheBarrierTestAtAShortBarrier) {
    Editor ed = noForces();
    ed.marks.mnuIgnoreBarriers = false;
    ed.TimeInterval = 0;
    ed.panels[4] = "as before";
    addNode(ed, 5000, 5000);
    addNode(ed, 7000, 5000);
    addNode(ed, 6000, 4990);
    ed.Nodes[1].Locked = ed.Nodes[2].Locked = true;
    linkAt(ed, addLink(ed, 1, 1)).Barrier = true;
    linkAt(ed, addLink(ed, 1, 2)).Barrier = true;
    steps(ed, 1);
    EXPECT_EQ(ed.Nodes[3].Y, 4990);
    EXPECT_EQ(ed.panels[4], "as before");
    std::swap(ed.Links[1], ed.Links[2]);
    steps(ed, 1);
    EXPECT_EQ(ed.Nodes[3].Y, 5060);
    EXPECT_EQ(ed.panels[4], "as before");
    ed.Links[2].Used = false;
    steps(ed, 1);
    EXPECT_EQ(ed.panels[4], "60");
    ed.Links[1].Used = false;
    steps(ed, 1);
    EXPECT_EQ(ed.panels[4], "0");
}

TEST(Step, TakesSparksAwayAtTheFloor) {
    for (const bool persistent : {false, true}) {
        Editor ed = noForces();
        ed.timerFireWorks.enabled = true;
        ed.marks.mnuPersistentFireworks = persistent;
        ed.SelectedNode = addNode(ed, 5000, 100000);
        steps(ed, 1);
        EXPECT_EQ(ed.Nodes[1].Used, persistent);
        EXPECT_EQ(ed.SelectedNode, persistent ? 1 : none);
    }
}

TEST(Step, StopsWithTheNodeAndTheReason) {
    const float infinite = std::numeric_limits<float>::infinity();
    struct Case {
        const char* text;
        void (*spoil)(Editor&);
    };
    for (const Case& c :
         {Case{"Node 3 has a mass of 0: animation stopped!", [](Editor& ed) { ed.Nodes[3].Mass = 0; }},
          Case{"Node 2 has left the world: animation stopped!", [](Editor& ed) { ed.Nodes[2].Vx = 1e12F; }},
          Case{"Node 1 holds a value that is not finite: animation stopped!",
               [](Editor& ed) { ed.Nodes[1].Fy = 3e38F, ed.Nodes[1].Mass = 1e-9F; }},
          Case{"Node 4 holds a value that is not finite: animation stopped!",
               [](Editor& ed) { ed.Links[1].k = 1e38F, ed.Links[1].RestLength = 3e38F; }}}) {
        Editor ed = scenes::fullScreen();
        ed.buttons.start = ed.Timer1.enabled = true;
        for (int x = 1000; x <= 5000; x += 1000) addNode(ed, x, x);
        ed.Nodes[4].Locked = ed.Nodes[5].Locked = true;
        ed.Nodes[1].Vx = 50;
        addLink(ed, 4, 5);
        c.spoil(ed);
        const Editor before = ed;
        steps(ed, 1);
        EXPECT_EQ(ed.panels[4], c.text);
        EXPECT_FALSE(ed.Timer1.enabled || ed.buttons.start);
        EXPECT_EQ(difference(ed.Nodes, before.Nodes, ""), "") << c.text;
        EXPECT_EQ(ed.AnimationTime, 0.0F);
    }
    Editor ed = scenes::fullScreen();
    ed.AnimationTime = infinite;
    ed.Timer1.enabled = true;
    steps(ed, 1);
    EXPECT_FALSE(ed.Timer1.enabled);
}

}  // namespace zentrik
