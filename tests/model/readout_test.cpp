// What the bars, panels and strips show after something changed behind them.

#include "desk.h"
#include "edit/mouse.h"
#include "edit/phase_mouse.h"
#include "library/library.h"
#include "model/redraw.h"
#include "sim/run.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>

namespace zentrik {

namespace {

TEST(Readout, TipsTellThePresentGlobalValues) {
    Desk desk;
    showGlobalValues(desk.ed);
    renewGlobalValues(desk.ed);
    EXPECT_EQ(desk.ed.tips.friction, "Friction: 0.2") << "the start-up's label stays while it is true";
    desk.ed.Gravity = 3;
    desk.choose("mnuResetGlobal");
    renewGlobalValues(desk.ed);
    const Tips& tips = desk.ed.tips;
    EXPECT_EQ(tips.gravity + "|" + tips.friction + "|" + tips.speed,
              "Gravity: 1|Surface Friction: 0.5|Animator Speed: 1");
}

TEST(Readout, PressedButtonsFollowWhateverChangesTheSelected) {
    Desk desk = withPair();
    Editor& ed = desk.ed;
    ed.SelectedNode = 1;
    desk.press("nextlink");
    ed.SelectedNode = none;
    ed.marks.mnuApplyChanges = true;
    desk.choose("mnuLockAll");  // selects the link's first node
    EXPECT_EQ(ed.SelectedNode, 1);
    EXPECT_TRUE(ed.nodeControls && ed.buttons.locked);
    desk.choose("mnuUnlockAll");
    EXPECT_FALSE(ed.buttons.locked);
    ed.Nodes[1].Mass = 7;
    ed.SelectedNode = none;
    desk.choose("mnuResetMass");
    EXPECT_EQ(ed.tips.mass, "Mass: 1");
    ed.SelectedNode = none;
    ed.Nodes[1].Mass = 7;
    desk.press("up");
    EXPECT_EQ(ed.tips.mass, "Mass: 7");
    desk.press("barrier");
    EXPECT_TRUE(ed.buttons.barrier);
    desk.pressProperty("barrier");
    EXPECT_FALSE(ed.Links[1].Barrier);
    ed.Links[1].Animator = ed.buttons.animator = true;
    desk.ed.marks.mnuDisplayAngleManager = true;
    picPhase_MouseDown(ed, leftButton, static_cast<float>(ed.Links[1].DiscX),
                       static_cast<float>(ed.Links[1].DiscY));
    picPhase_DblClick(ed);
    EXPECT_FALSE(ed.buttons.animator);
}

TEST(Readout, TheStripFollowsLoadsDeletionsAndColours) {
    const TemporaryFolder folder;
    Desk desk = withPair();
    Editor& ed = desk.ed;
    ed.programFolder = folder.path.string();
    ed.Links[1].Animator = true;
    ed.Links[1].Angle = 90;
    ed.phaseWidth = 10000;
    ed.marks.mnuDisplayAngleManager = true;
    ed.AnimationTime = 5;
    ASSERT_TRUE(SaveFile(ed, desk.host, "strip"));
    ed.savedText = "strip";
    desk.host.colour = 255;
    const auto follows = [&](auto act, const char* what) {
        for (Link& link : ed.Links) link.DiscX = 0;
        ed.phaseStale = false;
        act();
        EXPECT_TRUE(ed.phaseStale) << what;
        return ed.Links[1].DiscX == 3000;
    };
    EXPECT_TRUE(follows([&] { desk.press("refresh"); }, "reload"));
    EXPECT_TRUE(follows([&] { lstSaved_Click(ed, desk.host, 0); }, "choice from the list"));
    EXPECT_TRUE(follows([&] { desk.choose("mnuNodeColor"); }, "node colour"));
    ed.SelectedLink = 1;
    EXPECT_FALSE(follows([&] { desk.press("delete"); }, "delete"));
}

TEST(Readout, TheSineCurveHasOnePhaseForAll) {
    Desk desk = withPair();
    Editor& ed = desk.ed;
    ed.marks.mnuDisplayAngleManager = true;
    ed.DeltaAngle = 0.5F;
    desk.press("start");
    Timer1_Timer(ed);
    Timer1_Timer(ed);
    const float phase = ed.phaseShift;
    EXPECT_FLOAT_EQ(phase, 0.02F);
    picPhase_MouseMove(ed, 10, 10);
    EXPECT_EQ(ed.phaseShift, phase);
    picS_MouseDown(ed, rightButton, 10, 10);
    EXPECT_EQ(ed.phaseShift, phase);
}

TEST(Readout, CountsFollowTheFloorThatTakesSparks) {
    Desk desk = withPair();
    Editor& ed = desk.ed;
    ed.timerFireWorks.enabled = true;
    ed.Nodes[3].Y = ed.sceneHeight;
    showCounts(ed);
    desk.press("start");
    Timer1_Timer(ed);
    EXPECT_EQ(panel(ed, 1), "Nodes: 2");
}

TEST(Readout, ASingleStepIsDrawnAsTheRunItBelongsTo) {
    Desk desk = withPair();
    desk.press("single");
    Timer1_Timer(desk.ed);
    EXPECT_FALSE(desk.ed.Timer1.enabled);
    EXPECT_TRUE(desk.ed.drawnRunning);
    picS_MouseMove(desk.ed, 0, 10, 10);
    EXPECT_FALSE(desk.ed.drawnRunning);
}

}  // namespace

}  // namespace zentrik
