// Run control: what start, single, reposition and the tick do to the timer, the snapshot and the clock.

#include "sim/run.h"

#include "model/store.h"
#include "rig.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

#include <limits>

namespace zentrik {

namespace {

struct Run : testing::Test {
    Editor ed = scenes::fullScreen();
    ScriptedHost host;

    Run() {
        scenes::addNode(ed, 1000, 1000);
        ed.Nodes[1].Vxo = 1;
    }
    // As the toolbar does it: the two-state button changes first.
    void clickStart() {
        ed.buttons.start = !ed.buttons.start;
        startClicked(ed, host);
    }
    void tick() {
        if (ed.Timer1.enabled) Timer1_Timer(ed);
    }
};

}  // namespace

TEST_F(Run, StartTakesASnapshotOnlyWhenTheTimerStood) {
    clickStart();
    EXPECT_TRUE(ed.Timer1.enabled && ed.InitialVelocityPending);
    EXPECT_EQ(ed.tips.start, "Stop");
    tick();
    EXPECT_EQ(ed.Nodes[1].Vx, 1000.0F);
    EXPECT_EQ(ed.Nodes[1].X, 1020);
    clickStart();  // stops
    EXPECT_FALSE(ed.Timer1.enabled);
    EXPECT_EQ(ed.tips.start, "Start");
    EXPECT_EQ(ed.SavedNodes[1].X, 1000);
    clickStart();
    EXPECT_EQ(ed.SavedNodes[1].X, 1020);
    tick();
    ed.SelectedNode = ed.HoverNode = 1;
    ed.pathDots.push_back({});
    repositionClicked(ed, host);
    EXPECT_EQ(ed.Nodes[1].X, 1020);
    EXPECT_EQ(ed.AnimationTime, 0.0F);
    EXPECT_EQ(ed.SelectedNode, none);
    EXPECT_EQ(ed.HoverNode, none);
    EXPECT_TRUE(ed.pathDots.empty());
    EXPECT_TRUE(ed.Timer1.enabled);  // the running state is left alone
}

TEST_F(Run, SnapshotHoldsNodesAndLinksOfItsMoment) {
    scenes::addNode(ed, 2000, 1000);
    scenes::addLink(ed, 1, 2);
    SaveState(ed);
    ed.Nodes[2].Sprite = "other.png";
    ed.Links[1].k = 99;
    scenes::addNode(ed, 3000, 1000);
    RestoreState(ed);
    EXPECT_EQ(lastNode(ed), 2);
    EXPECT_EQ(ed.Nodes[2].Sprite, noSprite);
    EXPECT_EQ(ed.Links[1].k, 5.0F);
    ed.Nodes[2].X = 7;  // the snapshot can be restored again
    RestoreState(ed);
    EXPECT_EQ(ed.Nodes[2].X, 2000);
}

TEST_F(Run, RepositionBeforeAnyStartEmptiesTheModel) {
    repositionClicked(ed, host);
    EXPECT_EQ(lastNode(ed), 0);
    EXPECT_EQ(lastLink(ed), 0);
}

TEST_F(Run, SingleStepsOnceWhetherStoppedOrRunning) {
    singleClicked(ed, host);
    EXPECT_TRUE(ed.Timer1.enabled && ed.SingleStep);
    tick();
    tick();
    EXPECT_EQ(ed.Cycles, 1);
    EXPECT_EQ(ed.panels[2], "Cycles: 1");
    clickStart();
    EXPECT_FALSE(ed.SingleStep);
    tick();
    tick();
    singleClicked(ed, host);
    EXPECT_FALSE(ed.buttons.start);
    EXPECT_EQ(ed.tips.start, "Start");
    tick();
    tick();
    EXPECT_EQ(ed.Cycles, 4);
    EXPECT_FALSE(ed.Timer1.enabled);
}

TEST_F(Run, InitialVelocitiesActAgainAfterTheClockWasSetToZero) {
    clickStart();
    tick();
    ed.Nodes[1].Vx = 0;
    clickStart();
    clickStart();
    tick();  // armed, but the clock has moved on
    EXPECT_EQ(ed.Nodes[1].Vx, 0.0F);
    ed.marks.mnuDisplayAngleManager = true;
    ed.phaseShift = 3;
    mnuSetZero_Click(ed, host);
    EXPECT_EQ(ed.panels[3], "Time:  0.000");
    EXPECT_EQ(ed.phaseShift, 0.0F);
    tick();
    EXPECT_EQ(ed.Nodes[1].Vx, 1000.0F);
}

TEST_F(Run, CountsCyclesPastTheEndAndThroughClearing) {
    ed.Cycles = std::numeric_limits<std::int32_t>::max();
    singleClicked(ed, host);
    tick();
    EXPECT_EQ(ed.Cycles, std::numeric_limits<std::int32_t>::min());
    ClearAnimation(ed);
    EXPECT_EQ(ed.Cycles, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(ed.panels[2], "Cycles: 0");
}

TEST_F(Run, StopsATickThatCannotGoOn) {
    clickStart();
    ed.Nodes[1].Mass = 0;
    tick();
    EXPECT_FALSE(ed.Timer1.enabled || ed.buttons.start);
    EXPECT_EQ(ed.panels[4], "Node 1 has a mass of 0: animation stopped!");
    EXPECT_TRUE(ed.InitialVelocityPending);  // still armed for the start that follows the repair
}

TEST_F(Run, RateKeepsToPeriodsTheTimerAccepts) {
    for (const std::int32_t refused : {0, -5, 65536}) setRate(ed, refused);
    EXPECT_EQ(ed.Timer1.interval, 20);
    setRate(ed, 65535);
    EXPECT_EQ(ed.Timer1.interval, 65535);
}

}  // namespace zentrik
