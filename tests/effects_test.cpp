#include "effects/fireworks.h"
#include "effects/shooter.h"
#include "model/redraw.h"
#include "model/shooter_aim.h"
#include "model/store.h"
#include "rig.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zentrik {
namespace {

using scenes::addNode;

// A running model with a shooter at node 1 and its trigger at node 2, not yet tied to it.
struct Range {
    Editor ed = scenes::fullScreen();
    ScriptedHost host;

    Range() {
        addNode(ed, 1300, 1000);
        addNode(ed, 1000, 1000);
        nodeAt(ed, 1).Res1 = 0;
        ed.buttons.ball = false;  // a redraw then leaves the trigger alone
        ed.Timer1.enabled = true;
        ed.SelectedNode = 1;
    }
    const Node* fire() {
        const std::int32_t before = lastNode(ed);
        mnuFire_Click(ed, host);
        return lastNode(ed) > before ? &ed.Nodes.back() : nullptr;
    }
};

TEST(Shooter, FiresByTheGlobalSettingsOrAwayFromItsTrigger) {
    Range range;
    const Node* ball = range.fire();
    ASSERT_TRUE(ball);
    EXPECT_EQ(std::pair(ball->X, ball->Y), std::pair(1300, 1000));
    EXPECT_NEAR(ball->Vx, 5673, 1);
    EXPECT_NEAR(ball->Vy, -5640, 1);
    EXPECT_EQ(ball->Res1, none);
    EXPECT_EQ(range.ed.SelectedNode, 1);
    EXPECT_EQ(range.ed.LastShooter, 1);

    nodeAt(range.ed, 1).Res1 = 2;
    range.ed.marks.mnuCannonBallFocus = true;
    ball = range.fire();
    EXPECT_EQ(ball->Vx, 3000);
    EXPECT_NEAR(ball->Vy, 0, 0.1);
    EXPECT_EQ(range.ed.SelectedNode, 4);
    nodeAt(range.ed, 1).Res1 = 900;  // no such trigger
    ball = range.fire();             // the last shooter again
    EXPECT_NEAR(ball->Vx, 5673, 1);
}

TEST(Shooter, LooksForItsTriggerUntilItHasALink) {
    Range range;
    Editor& ed = range.ed;
    ed.buttons.ball = true;
    nodeAt(ed, 1).Locked = true;
    addNode(ed, 2000, 2000);
    Link freed = defaultLink(ed, 1, 3), hanging = defaultLink(ed, 1, 9), loop = defaultLink(ed, 3, 3);
    freed.Used = false;
    for (const Link& link : {freed, hanging, loop}) appendLink(ed, link);
    DisplayScene(ed, -1, -1);
    EXPECT_EQ(nodeAt(ed, 1).Res1, 0);

    appendLink(ed, defaultLink(ed, 2, 1));
    appendLink(ed, defaultLink(ed, 1, 3));
    DisplayScene(ed, -1, -1);
    EXPECT_EQ(nodeAt(ed, 1).Res1, 2);
    EXPECT_TRUE(nodeAt(ed, 2).Locked);
    const std::vector<std::int32_t> triggers = triggerNodes(ed);
    for (std::int32_t i = 1; i <= 3; ++i)
        EXPECT_EQ(triggers[static_cast<std::size_t>(i)], GetTriggerNode(ed, i)) << i;
}

TEST(Shooter, FiresNothingWhenItCannot) {
    Range stopped;
    stopped.ed.Timer1.enabled = false;
    EXPECT_FALSE(stopped.fire());
    Range standard;
    standard.ed.SelectedNode = 2;
    EXPECT_FALSE(standard.fire());
    EXPECT_EQ(standard.ed.SelectedNode, 2);
    for (const std::int32_t last : {0, 2, 3, 50}) {  // none, no shooter, a free shooter, no slot
        Range range;
        addNode(range.ed, 0, 0);
        range.ed.Nodes.back().Res1 = 0;
        range.ed.Nodes.back().Used = false;
        range.ed.LastShooter = last;
        range.ed.SelectedNode = none;
        EXPECT_FALSE(range.fire());
        EXPECT_EQ(range.ed.SelectedNode, none);
    }
}

TEST(Shooter, AChainFiresFromItsEnd) {
    Range range;
    for (const std::int32_t trigger : {1, 3, 2}) {
        addNode(range.ed, 3000, 3000);
        range.ed.Nodes.back().Res1 = trigger;
    }
    const Node* ball = range.fire();  // 1 triggers 3, 3 triggers 4; 5 belongs to node 2
    ASSERT_TRUE(ball);
    EXPECT_EQ(range.ed.SelectedNode, 4);
    EXPECT_EQ(range.ed.LastShooter, 1);
    EXPECT_EQ(ball->X, 3000);
    EXPECT_EQ(ball->Vx, 0);  // it stands on its trigger
}

TEST(Shooter, SettingsTakeOnlyTheirRange) {
    struct {
        std::string answer;
        float direction, velocity;
    } const cases[] = {
        {"", 0.7825F, 8000},       {"360", 6.282F, 360},     {"0", 0, 0},
        {"-1", 0.7825F, -1},       {"361", 0.7825F, 361},    {"30000", 0.7825F, 30000},
        {"-30000", 0.7825F, 8000}, {"30001", 0.7825F, 8000}, {"up", 0, 0},
    };
    for (const auto& c : cases) {
        Range range;
        range.host.answers = {c.answer, c.answer};
        mnuShooterDirection_Click(range.ed, range.host);
        mnuShooterVelocity_Click(range.ed, range.host);
        EXPECT_FLOAT_EQ(range.ed.ShooterDirection, c.direction) << c.answer;
        EXPECT_FLOAT_EQ(range.ed.ShooterVelocity, c.velocity) << c.answer;
        EXPECT_EQ(range.host.transcript,
                  "input: Enter shooter direction (0-360 degrees).|Set Shooter Direction|44.8\n"
                  "input: Enter shooter velocity.|Set Shooter Velocity|8000\n");
    }
}

std::uint64_t fixedSeed() { return 12345; }

TEST(Fireworks, TicksAddTheirBursts) {
    Editor ed = scenes::fullScreen();
    ScriptedHost host;
    ed.chance.seedSource = fixedSeed;
    ed.marks.mnuDisplayFireWorks = true;
    followFireworksMark(ed, host);
    EXPECT_TRUE(ed.timerFireWorks.enabled);
    timerFireWorks_Timer(ed);
    EXPECT_EQ(lastNode(ed), 0);
    EXPECT_EQ(ed.FireworksTicks, 0);

    ed.Timer1.enabled = true;
    addNode(ed, 0, 0);
    nodeAt(ed, 1).Vx = 7;
    std::int32_t size = 0;  // every burst has as many sparks: the seed is fixed
    for (int tick = 1; tick <= 15; ++tick) {
        SCOPED_TRACE(tick);
        ClearAnimation(ed);
        addNode(ed, 0, 0);
        nodeAt(ed, 1).Vx = 7;
        timerFireWorks_Timer(ed);
        const std::int32_t sparks = lastNode(ed) - 1;
        if (tick == 1) size = sparks;
        ASSERT_GE(size, 10);
        ASSERT_LE(size, 60);
        const bool scattered = tick % 5 == 0, ring = tick % 2 == 1;
        EXPECT_EQ(sparks, size * (scattered + ring));
        EXPECT_EQ(nodeAt(ed, 1).Vx, tick % 3 == 0 ? -7 : 7);
        std::int32_t apart = 0;  // sparks that do not start where the last one does
        for (std::int32_t i = 2; i <= lastNode(ed); ++i) {
            const Node& spark = nodeAt(ed, i);
            EXPECT_NEAR(std::hypot(spark.Vx, spark.Vy), 5000, 1);
            EXPECT_EQ(spark.Res1, none);
            apart += spark.X != ed.Nodes.back().X;
        }
        if (ring) {
            EXPECT_EQ(panel(ed, 5), "Node ring created (" + std::to_string(size) + " : 0)");
            EXPECT_GE(ed.Nodes.back().X, 0.4 * ed.sceneWidth);
            EXPECT_LE(ed.Nodes.back().X, 0.6 * ed.sceneWidth + 1);
            EXPECT_GE(ed.Nodes.back().Y, 0.2 * ed.sceneHeight);
            EXPECT_LE(ed.Nodes.back().Y, 0.4 * ed.sceneHeight + 1);
        }
        EXPECT_EQ(apart > 0, scattered);
        if (!ring && !scattered) {
            EXPECT_EQ(panel(ed, 5), "Node ring created (0 : 0)");
        }
    }
    ed.marks.mnuDisplayFireWorks = false;
    followFireworksMark(ed, host);
    EXPECT_FALSE(ed.timerFireWorks.enabled);
}

TEST(Fireworks, ACrowdedModelIsClearedFirst) {
    for (const int slots : {400, 401}) {
        Editor ed = scenes::fullScreen();
        ed.Timer1.enabled = true;
        for (int i = 0; i < slots; ++i) addNode(ed, i, 0);
        ed.SelectedNode = 300;
        timerFireWorks_Timer(ed);
        EXPECT_EQ(ed.SelectedNode, slots > 400 ? none : 300);
        EXPECT_EQ(lastNode(ed) > 400, slots <= 400);
        EXPECT_GE(lastNode(ed), 10);
    }
}

}  // namespace
}  // namespace zentrik
