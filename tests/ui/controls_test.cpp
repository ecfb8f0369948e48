// Menus, toolbars and the phase strip as the person meets them: every question and every message in
// its wording, and what a click changes.

#include "basics/numbers.h"
#include "desk.h"
#include "edit/phase_mouse.h"
#include "model/redraw.h"
#include "ui/commands/layout.h"
#include "ui/commands/sprite_commands.h"

#include <gtest/gtest.h>

namespace zentrik {

namespace {

TEST(Menus, ValuesAndColoursAreAskedFor) {
    Desk desk;
    Editor& ed = desk.ed;
    const std::pair<const char*, const char*> asked[] = {
        {"mnuGridSize", "49"},   {"mnuGridSize", "50"},   {"mnuGridSize", "120.4"}, {"mnuGridSize", ""},
        {"mnuSetRadius", "abc"}, {"mnuSetRadius", "-30"}, {"mnuSetRadius", ""},     {"mnuDefaultK", "7x"},
        {"mnuDefaultK", ""},     {"mnuDefaultForce", ""}};
    for (const auto& [name, answer] : asked) {
        desk.answer(answer);
        desk.choose(name);
    }
    EXPECT_EQ(desk.host.transcript,
              "input: Enter grid size.|Grid Size|250\n"
              "input: Enter grid size.|Grid Size|250\n"
              "input: Enter grid size.|Grid Size|50\n"
              "input: Enter grid size.|Grid Size|120\n"
              "input: Enter node radius.|Set Node Radius|60\n"
              "input: Enter node radius.|Set Node Radius|0\n"
              "input: Enter node radius.|Set Node Radius|0\n"
              "input: Enter default spring constant.|Default Spring Constant|5\n"
              "input: Enter default spring constant.|Default Spring Constant|7\n"
              "input: Enter default link force.|Default Link Force|0.2\n");
    EXPECT_EQ(panel(ed, 5), "The node radius takes -29 twips or more!");
    EXPECT_EQ(ed.HitRadius, 30);
    EXPECT_EQ(ed.GridSize, 120);
    for (const std::int32_t colour : {0x102030, none}) {
        desk.host.colour = colour;
        for (const char* name : {"mnuLineColor", "mnuNodeColor", "mnuBackgroundColor"}) desk.choose(name);
        EXPECT_TRUE(ed.LinkColor == 0x102030 && ed.NodeColor == 0x102030 && ed.BackColor == 0x102030);
    }
}

TEST(CommandToolbar, SteppingShowsWhatIsSelectedAndDeleteAsksOnlyForBoth) {
    Desk desk = withPair();
    desk.ed.Nodes[2].Locked = true;
    desk.ed.Links[1].Barrier = true;
    desk.press("nextnode");
    desk.press("nextnode");
    EXPECT_TRUE(desk.ed.buttons.locked);
    desk.pressProperty("locked");
    EXPECT_EQ(panel(desk.ed, 5), "Node 2 unlocked!");
    desk.press("nextlink");
    EXPECT_TRUE(desk.ed.buttons.barrier);
    EXPECT_EQ(desk.ed.tips.k, "k: 5");
    desk.host.confirms = false;
    desk.press("delete");
    EXPECT_EQ(desk.host.transcript,
              "confirm: You are about to delete BOTH a node and a link.  Proceed?|Delete Node/Link\n");
    EXPECT_EQ(endsOf(desk.ed), "1-2 ");
    desk.ed.SelectedLink = none;
    desk.press("delete");
    EXPECT_EQ(placesOf(desk.ed) + endsOf(desk.ed), "1000,1000 - 5000,5000 - ");
    EXPECT_EQ(panel(desk.ed, 1), "Nodes: 2");
}

TEST(CommandToolbar, NewStopsAndMessageShowsInstructionsUntilTheNextRedraw) {
    Desk desk = withPair();
    desk.press("start");
    desk.ed.AnimationTime = 5;
    desk.press("new");
    EXPECT_FALSE(desk.ed.Timer1.enabled || desk.ed.buttons.start);
    EXPECT_EQ(lastNode(desk.ed), 0);
    EXPECT_EQ(panel(desk.ed, 4), "Time:  0.000");
    desk.press("message");
    EXPECT_TRUE(desk.ed.instructionsShown);
    EXPECT_EQ(desk.host.transcript.substr(0, 6), "fetch:");
    redrawScene(desk.ed);
    EXPECT_FALSE(desk.ed.instructionsShown);
}

TEST(PropertyToolbar, TakesWhatCanBeANumberAndTells) {
    Desk desk = withPair();
    desk.pressProperty("mass");
    desk.preset("mass", "5");
    EXPECT_EQ(desk.host.transcript + realText(desk.ed.Nodes[1].Mass), "1") << "without a node";
    desk.ed.SelectedNode = desk.ed.SelectedLink = 1;
    const std::pair<const char*, const char*> answers[] = {
        {"gravity", "2.5x"}, {"rate", "12.5"}, {"rate", "0"}, {"rate", "65536"}, {"mass", "x"}, {"k", ""}};
    std::string told;
    for (const auto& [key, answer] : answers) {
        desk.answer(answer);
        panel(desk.ed, 5).clear();
        desk.pressProperty(key);
        told += panel(desk.ed, 5) + "|";
    }
    EXPECT_EQ(told,
              "Gravity changed to 2.5|Rate changed to 12|The rate takes 1 to 65535 milliseconds!|"
              "The rate takes 1 to 65535 milliseconds!|Mass changed to 0||");
    desk.preset("mass", "25");
    desk.preset("mass", presetTexts(Desk::property("mass")).back());
    EXPECT_EQ(desk.ed.tips.mass, "Mass: 0") << "the last preset is empty";
    for (const bool running : {false, true}) {
        desk.ed.sceneStale = false;
        desk.ed.buttons.start = running;
        desk.preset("viscosity", "0.5");
        EXPECT_EQ(desk.ed.sceneStale, !running) << "while running the next step redraws";
    }
}

TEST(PropertyToolbar, LocksAndShootersTurnBothWays) {
    Desk desk = withPair();
    Editor& ed = desk.ed;
    ed.SelectedNode = ed.SelectedLink = 1;
    ed.Nodes[1].Vx = 7;
    struct {
        const char *key, *told, *locked;
        float vx;
    } const cases[] = {
        {"locked", "Node 1 locked!", "100", 7},
        {"locked", "Node 1 unlocked!", "000", 0},
        {"shooter", "Node 1 is now a shooter (trigger = 2!", "110", 0},
        {"shooter", "Node 1 is now a standard node!", "000", 0},
    };
    for (const auto& c : cases) {
        desk.pressProperty(c.key);
        EXPECT_EQ(panel(ed, 5), c.told);
        EXPECT_EQ(flags(ed.Nodes, &Node::Locked), c.locked) << c.told;
        EXPECT_EQ(ed.buttons.locked, ed.Nodes[1].Locked) << c.told;
        EXPECT_EQ(ed.Nodes[1].Vx, c.vx);
    }
    EXPECT_EQ(ed.Nodes[1].Trigger, none);
}

TEST(Layout, AreasFollowTheirArrangement) {
    const std::int32_t SH = 9000, P = Editor{}.phaseHeight;
    struct {
        bool sprites, phase;
        std::int32_t sceneHeight, barTop;
    } const cases[] = {{false, false, SH - 1900, 0},
                       {false, true, SH - P - 1940, 0},
                       {true, false, SH - 720 - 2060, SH - 1410},
                       {true, true, SH - P - 720 - 210 - 1860, SH - P - 210 - 1200}};
    for (const auto& c : cases) {
        Editor ed;
        ed.marks.mnuDisplayBrowser = c.sprites;
        ed.marks.mnuDisplayAngleManager = c.phase;
        Form_Resize(ed, 15000, SH);
        EXPECT_EQ(panel(ed, 5), "H: " + std::to_string(c.sceneHeight) + "     W: 14880");
        EXPECT_EQ(ed.layout.picS.height, ed.sceneHeight);
        if (c.phase) {
            EXPECT_EQ(ed.layout.picPhase.top, SH - P - 1200);
        }
        if (c.sprites) {
            EXPECT_EQ(ed.layout.HScroll1.top, c.barTop);
            EXPECT_EQ(ed.layout.Frame1.top, c.barTop - 720);
        }
    }
}

Desk withStrip(float angle1, float angle2, float angle3) {
    Desk desk = withPair();
    scenes::addLinks(desk.ed, {{1, 3}, {2, 3}});
    const float angles[] = {angle1, angle2, angle3};
    for (std::size_t j = 1; j <= 3; ++j) {
        desk.ed.Links[j].Animator = true;
        desk.ed.Links[j].Angle = angles[j - 1];
    }
    desk.ed.marks.mnuDisplayAngleManager = true;
    desk.ed.phaseWidth = 10000;
    DrawPhaseManager(desk.ed, 0);
    return desk;
}

TEST(PhaseManager, DiscsStackByWholeDegree) {
    const Desk near = withStrip(90, 90.4F, 89.6F);
    EXPECT_EQ(near.ed.Links[1].DiscX, 3000);
    for (std::size_t j = 1; j <= 3; ++j) EXPECT_EQ(near.ed.Links[j].DiscY, 100 + 200 * static_cast<int>(j));
    const Desk outside = withStrip(-50, 1e30F, 360);
    EXPECT_EQ(outside.ed.Links[1].DiscY, 300);
    EXPECT_EQ(outside.ed.Links[3].DiscY, 500) << "beyond the end stacks at the end";
}

TEST(PhaseManager, DragsSnapAndClamp) {
    Desk desk = withStrip(0, 90, 180);
    Editor& ed = desk.ed;
    ed.buttons.snap = true;
    for (const auto& [x, angle] :
         {std::pair{1240.F, 0.F}, {1260.F, 22.5F}, {99999.F, 360.F}, {-500.F, 0.F}}) {
        picPhase_MouseDown(ed, 1, static_cast<float>(ed.Links[1].DiscX),
                           static_cast<float>(ed.Links[1].DiscY));
        EXPECT_EQ(ed.SelectedLink, 1);
        picPhase_MouseMove(ed, x, 300);
        picPhase_MouseUp(ed);
        EXPECT_EQ(ed.Links[1].Angle, angle) << x;
    }
    ed.buttons.snap = false;
    EXPECT_FLOAT_EQ(SnapToPhaseGrid(ed, 5000), 180);
    picPhase_MouseMove(ed, 3000, 300);
    EXPECT_EQ(ed.PhaseOverLink, 2);
    EXPECT_EQ(panel(ed, 5), "Link: 2");
    picPhase_DblClick(ed);
    EXPECT_FALSE(ed.Links[1].Animator) << "the picked link leaves the strip";
    picPhase_DblClick(ed);
    picPhase_MouseDown(ed, 2, 0, 0);
    EXPECT_EQ(ed.SelectedLink, none);
    EXPECT_TRUE(ed.Links[2].Animator && ed.Links[3].Animator);
}

TEST(SpriteCommands, GiveSprites) {
    Desk desk = withPair();
    desk.choose("mnuRandomNodes");
    EXPECT_EQ(desk.ed.Nodes[1].Sprite, noSprite);
    desk.ed.spriteNames = {noSprite, "ant.svg", "bee.svg"};
    imgSprite_Click(desk.ed, 2);
    EXPECT_EQ(desk.ed.Nodes[1].SpriteIndex, 0);
    desk.ed.SelectedNode = 1;
    for (const int outside : {-1, 3, 1000}) imgSprite_Click(desk.ed, outside);
    EXPECT_EQ(desk.ed.Nodes[1].SpriteIndex, 0);
    desk.ed.sceneStale = false;
    imgSprite_Click(desk.ed, 2);
    EXPECT_TRUE(desk.ed.sceneStale);
    EXPECT_EQ(desk.ed.Nodes[1].Sprite, "bee.svg");
    EXPECT_EQ(desk.ed.spriteEntry, 2);
    int bees = 0;
    for (int round = 0; round < 100; ++round) {
        desk.choose("mnuRandomNodes");
        ASSERT_NE(desk.ed.Nodes[3].SpriteIndex, 0);
        bees += desk.ed.Nodes[3].SpriteIndex == 2;
    }
    EXPECT_TRUE(bees > 20 && bees < 80) << bees;
}

}  // namespace

}  // namespace zentrik
