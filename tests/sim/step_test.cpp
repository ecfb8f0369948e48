// The step: bit for bit what the plain loops give, on odd and on ordinary models, and the numbers that
// can be worked out by hand.

#include "sim/run.h"

#include "basics/numbers.h"
#include "measure/state_hash.h"
#include "model/invariants.h"
#include "plain_step.h"
#include "random_model.h"
#include "rig.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <functional>
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
    return {n.Used,     n.X,        n.Y,        n.Locked,   n.Marked,      n.color,
            bits(n.Vx), bits(n.Vy), bits(n.Fx), bits(n.Fy), bits(n.Rotate)};
}
std::vector<std::int64_t> stateOf(const Link& link) {
    return {link.Used, link.Marked, link.DiscX, link.DiscY, bits(link.CurrentLength)};
}

std::vector<std::int64_t> stateOf(const PathDot& dot) { return {dot.x, dot.y, dot.colour}; }

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

std::vector<std::int64_t> stateOf(const Editor& ed) {
    return {bits(ed.AnimationTime), ed.TimeDirection,        ed.InitialVelocityPending, ed.SelectedNode,
            ed.Timer1.enabled,      ed.tips.start == "Stop", bits(ed.phaseShift)};
}

// The first difference of two models that were stepped alike, or the empty text.
std::string difference(const Editor& a, const Editor& b) {
    if (a.panels != b.panels) return "panels " + a.panels[4] + " and " + b.panels[4];
    if (stateOf(a) != stateOf(b)) return "clock, selection or running state";
    if (a.pathDots.size() != b.pathDots.size()) return "path";
    return difference(a.Nodes, b.Nodes, "node ") + difference(a.Links, b.Links, "link ") +
           difference(a.pathDots, b.pathDots, "dot ");
}

Editor noForces() {
    Editor ed = scenes::fullScreen();
    ed.Gravity = 0;
    ed.marks.mnuIgnoreBarriers = true;
    return ed;
}

void steps(Editor& ed, int count) {
    while (count-- > 0) stepOrStop(ed);
}

}  // namespace

// What happened to models that were stepped beside their plain step.
struct Tally {
    int steps = 0, stopped = 0, touched = 0, left = 0;
};

void compareWithPlainStep(Editor& fast, std::uint32_t seed, Tally& tally) {
    Editor slow = fast;
    for (int t = 0; t < 25; ++t) {
        const std::int32_t direction = slow.TimeDirection;
        stepOrStop(fast);
        plain::step(slow);
        const std::string different = difference(fast, slow);
        ASSERT_EQ(different, "") << "model " << seed << ", step " << t;
        ++tally.steps;
        tally.touched += direction != slow.TimeDirection;
        if (slow.Timer1.enabled) continue;
        ASSERT_EQ(brokenRule(fast), "") << "model " << seed << ", step " << t;
        tally.left += slow.panels[4].find("left the world") != std::string::npos;
        ++tally.stopped;
        break;
    }
}

// At, behind and near both walls, in objects of many nodes, under barriers; some scenes narrower than a node.
Editor modelAtWalls(std::uint32_t seed) {
    Editor ed = randomModel(seed);
    ed.marks.mnuWalls = true;
    ed.NodeRadius = seed % 7 == 0 ? 900 : 60;
    ed.sceneWidth = seed % 5 == 0 ? 400 : 9000;
    if (seed % 6 == 1) ed.Friction = 2;  // turns a node without slowing it
    const std::int32_t right = ed.sceneWidth - ed.NodeRadius - 45;
    const std::array<std::int32_t, 8> places{60, 61, 59, -500, right, right + 1, right - 2, right + 700};
    for (std::size_t i = 1; i < ed.Nodes.size(); ++i)
        if (i % 4 != seed % 4) ed.Nodes[i].X = places[(i * 7 + seed) % places.size()];
    if (seed % 3 == 0) ed.marks.mnuIgnoreBarriers = ed.marks.mnuReverseModel = false;
    return ed;
}

TEST(Step, IsThePlainStepBitForBitAndTheSameInEveryBuild) {
    std::uint64_t hash = 0xcbf29ce484222325U;
    Tally tally;
    std::vector<std::uint32_t> seeds(1500);
    std::iota(seeds.begin(), seeds.end(), 1U);
    seeds.push_back(29412);  // a barrier puts a node, and with it another barrier's end, where it meets it
    for (const std::uint32_t seed : seeds) {
        Editor fast = randomModel(seed);
        ASSERT_NO_FATAL_FAILURE(compareWithPlainStep(fast, seed, tally));
        hash = stateHash(fast, hash);
    }
    EXPECT_EQ(hash, 13677924790301850835U);
    // The models are worth comparing only if most of them run and all kinds of things happen to them.
    EXPECT_GT(tally.steps, 20000);
    EXPECT_GT(tally.stopped, 100);
    EXPECT_GT(tally.touched, 1000);
    EXPECT_GT(tally.left, 20);
}

TEST(Step, IsThePlainStepWhereManyNodesTouchWallsAndBarriers) {
    Tally tally;
    for (std::uint32_t seed = 1; seed <= 1500; ++seed) {
        Editor fast = modelAtWalls(seed);
        ASSERT_NO_FATAL_FAILURE(compareWithPlainStep(fast, seed, tally));
    }
    EXPECT_GT(tally.steps, 20000);
    EXPECT_GT(tally.touched, 10000);
}

// Numbers worked out by hand, which the plain step could have wrong just as the fast one.
TEST(Step, GivesTheWorkedNumbers) {
    const auto directed = [](float degrees) {
        return [degrees](Editor& ed) {
            ed.marks.mnuUseDirectional = ed.InitialVelocityPending = true;
            ed.Nodes[1].Vxo = degrees;
            ed.Nodes[1].Vyo = 2;
        };
    };
    struct {
        const char* what;
        std::function<void(Editor&)> set;
        const char* last;  // node, after one step from rest at (5000, 5000)
    } const cases[] = {
        {"falls", [](Editor& ed) { ed.Gravity = 1; }, "5000,5004 0,200"},
        {"falls slowly", [](Editor& ed) { ed.Gravity = 1, ed.buttons.slow = true; }, "5000,5000 0,50"},
        {"directed", directed(0), "5040,5000 2000,0"},
        {"directed upwards", directed(90), "5000,4960 -0.5926211,-2000"},
        {"no direction", directed(359.6F), "5000,5000 0,0"},
        {"rounds to even", [](Editor& ed) { ed.TimeInterval = 500, ed.Nodes[1].Vx = 1, ed.Nodes[1].Vy = 3; },
         "5000,5002 1,3"},
        {"floor", [](Editor& ed) { ed.Nodes[1].Y = 16095, ed.Nodes[1].Vy = 400, ed.Nodes[1].Vx = 100; },
         "5002,16095 80,-200"},
        {"ceiling", [](Editor& ed) { ed.marks.mnuCeiling = true, ed.Nodes[1].Y = 60, ed.Nodes[1].Vy = -400; },
         "5000,60 0,200"},
        // 3-4-5, stretched by 100: 100 x 5 x 100 = 50,000 pulls the ends together.
        {"spring",
         [](Editor& ed) {
             addNode(ed, 4700, 4600);
             linkAt(ed, addLink(ed, 1, 2)).RestLength = 400;
         },
         "4718,4624 600,800"},
        {"spring without a direction, however strong",
         [](Editor& ed) {
             ed.Gravity = 1;
             ed.marks.mnuAllowZero = true;
             addNode(ed, 5000, 5000);
             Link& link = linkAt(ed, addLink(ed, 1, 2));
             link.k = 1e38F, link.RestLength = 3e38F;
         },
         "5000,5004 0,200"},
        {"attraction: 10 x 5 / 0.5^2",
         [](Editor& ed) {
             ed.TimeInterval = 1000;
             nodeAt(ed, addNode(ed, 5000, 5000)).Locked = true;
             ed.Nodes[1].Gravity = 5, ed.Nodes[1].Locked = true;
             addNode(ed, 0, 5000);
         },
         "300,5000 200,0"},
        {"barrier",
         [](Editor& ed) {
             ed.marks.mnuIgnoreBarriers = false;
             ed.TimeInterval = 0;
             ed.Nodes[1].Locked = true;
             nodeAt(ed, addNode(ed, 5000, 7000)).Locked = true;
             linkAt(ed, addLink(ed, 1, 2)).Barrier = true;
             addNode(ed, 5030, 6000);
             ed.Nodes[3].Vx = -10, ed.Nodes[3].Vy = 1;
         },
         "5060,6000 5,0.5"},
    };
    for (const auto& c : cases) {
        Editor ed = noForces();
        addNode(ed, 5000, 5000);
        c.set(ed);
        steps(ed, 1);
        const Node& node = ed.Nodes.back();
        EXPECT_EQ(placesOf(ed, lastNode(ed)) + realText(node.Vx) + "," + realText(node.Vy), c.last) << c.what;
    }
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
        stepOrStop(fast);
        plain::step(slow);
        EXPECT_EQ(difference(fast, slow), "") << dx;
    }
}

TEST(Step, RefusesACrowdThatCouldNotBeSteppedInTime) {
    Editor ed = noForces();
    ed.buttons.start = ed.Timer1.enabled = true;
    for (int i = 0; i < 200000; ++i) nodeAt(ed, addNode(ed, i % 500 * 50, i / 500 * 50)).Gravity = 1;
    steps(ed, 1);
    EXPECT_EQ(ed.panels[4],
              "So many nodes attract each other that a step would take about 5 minutes: animation stopped!");
    EXPECT_FALSE(ed.Timer1.enabled);
    EXPECT_EQ(ed.AnimationTime, 0.0F);
    for (Node& node : ed.Nodes) node.Gravity = 0;  // all but one
    ed.Nodes[9].Gravity = 1;
    steps(ed, 1);
    EXPECT_GT(ed.AnimationTime, 0.0F);
}

TEST(Step, StopsWithTheNodeAndTheReason) {
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
               [](Editor& ed) { ed.Links[1].k = 1e38F, ed.Links[1].RestLength = 3e38F; }},
          Case{"Node 5 holds a value that is not finite: animation stopped!",
               [](Editor& ed) { ed.Nodes[5].Vyo = 1e36F, ed.InitialVelocityPending = true; }},
          Case{"Node 4 holds a value that is not finite: animation stopped!",
               [](Editor& ed) {
                   ed.Nodes[4].Vxo = 2e36F, ed.InitialVelocityPending = true;
                   ed.marks.mnuUseDirectional = false;
               }},
          Case{"Node 4 holds a value that is not finite: animation stopped!",
               [](Editor& ed) {  // turned with all
                   ed.Friction = -360, ed.marks.mnuWalls = ed.marks.mnuReverseModel = true;
                   ed.Nodes[4].Vy = 2e36F, ed.Nodes[3].X = -9;
               }}}) {
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
}

}  // namespace zentrik
