// Run control: what start, single, reposition and the tick do to the timer, the snapshot and the clock.

#include "sim/run.h"

#include "desk.h"

#include <gtest/gtest.h>

#include <limits>

namespace zentrik {

namespace {

struct Run : testing::Test, Desk {
    Run() {
        scenes::addNode(ed, 1000, 1000);
        ed.Nodes[1].Vxo = 1;
    }
    void tick() {
        if (ed.Timer1.enabled) Timer1_Timer(ed);
    }
};

}  // namespace

TEST_F(Run, StartTakesASnapshotOnlyWhenTheTimerStood) {
    Desk never = *this;
    never.press("reposition");
    EXPECT_EQ(lastNode(never.ed), 0);
    press("start");
    EXPECT_TRUE(ed.Timer1.enabled && ed.InitialVelocityPending);
    EXPECT_EQ(ed.tips.start, "Stop");
    tick();
    EXPECT_EQ(ed.Nodes[1].Vx, 1000.0F);
    EXPECT_EQ(ed.Nodes[1].X, 1020);
    press("start");  // stops
    EXPECT_FALSE(ed.Timer1.enabled);
    EXPECT_EQ(ed.tips.start, "Start");
    EXPECT_EQ(ed.SavedNodes[1].X, 1000);
    press("start");
    EXPECT_EQ(ed.SavedNodes[1].X, 1020);
    scenes::addNode(ed, 2000, 1000);
    scenes::addLink(ed, 1, 2);
    for (int again = 0; again < 2; ++again) {
        tick();
        ed.SelectedNode = ed.HoverNode = 1;
        ed.pathDots.push_back({});
        ed.Nodes[1].Sprite = "other.png";
        press("reposition");
        EXPECT_EQ(ed.Nodes[1].X, 1020);
        EXPECT_EQ(ed.Nodes[1].Sprite, noSprite);
        EXPECT_EQ(lastNode(ed) + lastLink(ed), 1);
        EXPECT_EQ(ed.AnimationTime, 0.0F);
        EXPECT_EQ(selections(ed), (Selections{none, none, none, none}));
        EXPECT_TRUE(ed.pathDots.empty());
        EXPECT_TRUE(ed.Timer1.enabled);  // the running state is left alone
    }
}

TEST_F(Run, SingleStepsOnceWhetherStoppedOrRunning) {
    ed.Cycles = std::numeric_limits<std::int32_t>::max();
    press("single");
    EXPECT_TRUE(ed.Timer1.enabled && ed.SingleStep);
    tick();
    tick();
    EXPECT_EQ(ed.Cycles, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(panel(ed, 3), "Cycles: -2147483648");
    ed.Cycles = 1;
    press("start");
    EXPECT_FALSE(ed.SingleStep);
    tick();
    tick();
    press("single");
    EXPECT_FALSE(ed.buttons.start);
    EXPECT_EQ(ed.tips.start, "Start");
    tick();
    tick();
    EXPECT_EQ(ed.Cycles, 4);
    EXPECT_FALSE(ed.Timer1.enabled);
}

TEST_F(Run, InitialVelocitiesActAgainAfterTheClockWasSetToZero) {
    press("start");
    tick();
    ed.Nodes[1].Vx = 0;
    press("start");
    press("start");
    tick();  // armed, but the clock has moved on
    EXPECT_EQ(ed.Nodes[1].Vx, 0.0F);
    ed.marks.mnuDisplayAngleManager = true;
    ed.phaseShift = 3;
    choose("mnuSetZero");
    EXPECT_EQ(panel(ed, 4), "Time:  0.000");
    EXPECT_EQ(ed.phaseShift, 0.0F);
    tick();
    EXPECT_EQ(ed.Nodes[1].Vx, 1000.0F);
}

}  // namespace zentrik
