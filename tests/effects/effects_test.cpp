#include "effects/fireworks.h"

#include "desk.h"
#include "model/redraw.h"
#include "model/shooter_aim.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zentrik {
namespace {

using scenes::addNode;

// A running model with a shooter at node 1 and its trigger at node 2, not yet tied to it.
struct Shooter : testing::Test, Desk {
    Shooter() {
        scenes::addNodes(ed, {{1300, 1000}, {1000, 1000}});
        nodeAt(ed, 1).Trigger = 0;
        ed.buttons.ball = false;  // a redraw then leaves the trigger alone
        ed.Timer1.enabled = true;
        ed.SelectedNode = 1;
    }
    const Node* fire() {
        const std::int32_t before = lastNode(ed);
        choose("mnuFire");
        return lastNode(ed) > before ? &ed.Nodes.back() : nullptr;
    }
};

TEST_F(Shooter, FiresByTheGlobalSettingsOrAwayFromItsTrigger) {
    nodeAt(ed, 1).Mass = 3;
    const Node* ball = fire();
    ASSERT_TRUE(ball);
    EXPECT_EQ(ed.tips.mass, "Mass: 3");
    EXPECT_EQ(placesOf(ed, 3), "1300,1000 ");
    EXPECT_NEAR(ball->Vx, 5673, 1);
    EXPECT_NEAR(ball->Vy, -5640, 1);
    EXPECT_EQ(ball->Trigger, none);
    EXPECT_EQ(ed.SelectedNode, 1);
    EXPECT_EQ(ed.LastShooter, 1);
    nodeAt(ed, 1).Trigger = 2;
    ed.marks.mnuCannonBallFocus = true;
    ball = fire();
    EXPECT_EQ(ball->Vx, 3000);
    EXPECT_NEAR(ball->Vy, 0, 0.1);
    EXPECT_EQ(ed.SelectedNode, 4);
    nodeAt(ed, 1).Trigger = 900;  // no such trigger
    ball = fire();                // the last shooter again
    EXPECT_NEAR(ball->Vx, 5673, 1);
}

TEST_F(Shooter, LooksForItsTriggerUntilItHasALink) {
    ed.buttons.ball = true;
    nodeAt(ed, 1).Locked = true;
    addNode(ed, 2000, 2000);
    Link freed = defaultLink(ed, 1, 3), hanging = defaultLink(ed, 1, 9), loop = defaultLink(ed, 3, 3);
    freed.Used = false;
    for (const Link& link : {freed, hanging, loop}) appendLink(ed, link);
    redrawScene(ed);
    EXPECT_EQ(nodeAt(ed, 1).Trigger, 0);
    scenes::addLinks(ed, {{2, 1}, {1, 3}});
    redrawScene(ed);
    EXPECT_EQ(nodeAt(ed, 1).Trigger, 2);
    EXPECT_TRUE(nodeAt(ed, 2).Locked);
    const std::vector<std::int32_t> triggers = triggerNodes(ed);
    EXPECT_EQ(triggers, (std::vector<std::int32_t>{0, 2, 1, 3}));
    for (std::int32_t i = 1; i <= 3; ++i) EXPECT_EQ(GetTriggerNode(ed, i), triggers.at(std::size_t(i)));
}

TEST(Aim, IsCountedFromTheRightAgainstTheClock) {
    const struct {
        float dx, dy, degrees;
    } cases[] = {{0, 0, 0},    {1, 0, 0},    {1, -1, 45}, {0, -1, 90}, {-1, -1, 135},
                 {-1, 0, 180}, {-1, 1, 225}, {0, 1, 270}, {1, 1, 315}};
    for (const auto& c : cases)
        EXPECT_NEAR(GetVectorAngle(c.dx, c.dy) * 180 / 3.14159, c.degrees, 0.1) << c.degrees;
}

TEST_F(Shooter, FiresNothingWhenItCannot) {
    addNode(ed, 0, 0);
    ed.Nodes.back().Trigger = 0;
    ed.Nodes.back().Used = false;
    ed.SelectedNode = 2;  // no shooter
    EXPECT_FALSE(fire());
    EXPECT_EQ(ed.SelectedNode, 2);
    for (const std::int32_t last : {0, 2, 3, 50}) {  // none, no shooter, a free shooter, no slot
        ed.LastShooter = last;
        ed.SelectedNode = none;
        EXPECT_FALSE(fire());
        EXPECT_EQ(ed.SelectedNode, none);
    }
    ed.SelectedNode = 1;
    ed.Timer1.enabled = false;
    EXPECT_FALSE(fire());
}

TEST_F(Shooter, AChainFiresFromItsEnd) {
    for (const std::int32_t trigger : {1, 3, 2}) {
        addNode(ed, 3000, 3000);
        ed.Nodes.back().Trigger = trigger;
    }
    const Node* ball = fire();  // 1 triggers 3, 3 triggers 4; 5 belongs to node 2
    ASSERT_TRUE(ball);
    EXPECT_EQ(ed.SelectedNode, 4);
    EXPECT_EQ(ed.LastShooter, 1);
    EXPECT_EQ(ball->X, 3000);
    EXPECT_EQ(ball->Vx, 0);  // it stands on its trigger
}

TEST_F(Shooter, SettingsTakeOnlyTheirRange) {
    struct {
        std::string answer;
        float direction, velocity;
    } const cases[] = {
        {"", 0.7825F, 8000},       {"360", 6.282F, 360},     {"0", 0, 0},
        {"-1", 0.7825F, -1},       {"361", 0.7825F, 361},    {"30000", 0.7825F, 30000},
        {"-30000", 0.7825F, 8000}, {"30001", 0.7825F, 8000}, {"up", 0, 0},
    };
    for (const auto& c : cases) {
        ed = Editor{};
        host.transcript.clear();
        host.answers = {c.answer, c.answer};
        choose("mnuShooterDirection");
        choose("mnuShooterVelocity");
        EXPECT_FLOAT_EQ(ed.ShooterDirection, c.direction) << c.answer;
        EXPECT_FLOAT_EQ(ed.ShooterVelocity, c.velocity) << c.answer;
        EXPECT_EQ(host.transcript,
                  "input: Enter shooter direction (0-360 degrees).|Set Shooter Direction|44.8\n"
                  "input: Enter shooter velocity.|Set Shooter Velocity|8000\n");
    }
}

std::uint64_t fixedSeed() { return 12345; }

TEST(Fireworks, TicksAddTheirBursts) {
    Desk desk;
    Editor& ed = desk.ed;
    ed.chance.seedSource = fixedSeed;
    desk.choose("mnuDisplayFireWorks");
    EXPECT_TRUE(ed.timerFireWorks.enabled);
    timerFireWorks_Timer(ed);
    EXPECT_EQ(lastNode(ed), 0);
    EXPECT_EQ(ed.FireworksTicks, 0);

    ed.Timer1.enabled = true;
    std::int32_t size = 0;  // every burst has as many sparks: the seed is fixed
    for (int tick = 1; tick <= 15; ++tick) {
        SCOPED_TRACE(tick);
        ClearAnimation(ed);
        nodeAt(ed, addNode(ed, 0, 0)).Vx = 7;
        timerFireWorks_Timer(ed);
        const std::int32_t sparks = lastNode(ed) - 1;
        if (tick == 1) size = sparks;
        ASSERT_TRUE(size >= 10 && size <= 60) << size;
        const bool scattered = tick % 5 == 0, ring = tick % 2 == 1;
        EXPECT_EQ(sparks, size * (scattered + ring));
        EXPECT_EQ(nodeAt(ed, 1).Vx, tick % 3 == 0 ? -7 : 7);
        const Node centre = ed.Nodes.back();  // where all sparks of a ring start
        std::int32_t apart = 0;
        for (std::int32_t i = 2; i <= lastNode(ed); ++i) {
            EXPECT_NEAR(std::hypot(nodeAt(ed, i).Vx, nodeAt(ed, i).Vy), 5000, 1);
            apart += nodeAt(ed, i).X != centre.X;
        }
        EXPECT_EQ(apart > 0, scattered);
        const std::string last = std::to_string(ring ? size : 0);
        if (ring || !scattered) {
            EXPECT_EQ(panel(ed, 5), "Node ring created (" + last + " : 0)");
        }
        if (!ring) continue;
        EXPECT_NEAR(centre.X, 0.5 * ed.sceneWidth, 0.1 * ed.sceneWidth + 1);
        EXPECT_NEAR(centre.Y, 0.3 * ed.sceneHeight, 0.1 * ed.sceneHeight + 1);
    }
    desk.choose("mnuDisplayFireWorks");
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
