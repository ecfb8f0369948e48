#include "edit/mouse.h"

#include "model/redraw.h"
#include "rig.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

namespace zentrik {
namespace {

using scenes::addLinks;
using scenes::addNodes;

struct Mouse : testing::Test {
    Editor ed = scenes::fullScreen();

    void press(float x, float y, int button = leftButton) { picS_MouseDown(ed, button, x, y); }
    void release(float x, float y, int button = leftButton) { picS_MouseUp(ed, button, x, y); }
    void move(float x, float y) { picS_MouseMove(ed, 0, x, y); }
    void click(float x, float y) {
        move(x, y);
        press(x, y);
        release(x, y);
    }
};

TEST_F(Mouse, DrawsAChainAndClosesIt) {
    ed.NodeColor = 0x123456;
    click(1000, 1000);
    click(2000, 1000);
    ed.buttons.same = false;
    click(2000, 2000);
    move(1010, 1010);
    EXPECT_EQ(ed.HoverNode, 1);
    press(1010, 1010);
    EXPECT_EQ(selections(ed), (Selections{1, none, none, none}));
    EXPECT_EQ(placesOf(ed), "1000,1000 2000,1000 2000,2000 ");
    EXPECT_EQ(endsOf(ed), "1-2 2-3 3-1 ");
    EXPECT_EQ(linkAt(ed, 2).RestLength, 0);
    EXPECT_EQ(linkAt(ed, 2).CurrentLength, 1000);
    EXPECT_EQ(nodeAt(ed, 2).color, 0x123456);

    release(1010, 1010);
    press(1010, 1010);  // the selected node: drawing goes on, nothing is linked
    EXPECT_EQ(lastLink(ed), 3);
    EXPECT_TRUE(ed.SelectedNodeClicked && nodeAt(ed, 1).BeingDragged);
    release(1010, 1010);
    EXPECT_TRUE(nodeAt(ed, 1).JustReleased && !nodeAt(ed, 1).BeingDragged);

    press(5000, 5000, rightButton);  // leaves draw mode first, deselects next
    EXPECT_FALSE(ed.DrawMode);
    EXPECT_EQ(ed.SelectedNode, 1);
    press(5000, 5000, rightButton);
    EXPECT_EQ(ed.SelectedNode, none);

    ed.buttons.draw = false;
    click(4000, 1000);
    click(1000, 1000);
    EXPECT_EQ(lastLink(ed), 3);
    EXPECT_EQ(ed.SelectedNode, 1);
    ed.buttons.snap = true;
    click(7130, 370);
    EXPECT_EQ(placesOf(ed, 5), "7250,250 ");
}

TEST_F(Mouse, DraggingMeasuresItsLinks) {
    addNodes(ed, {{1000, 1000}, {2000, 1000}, {3000, 1000}});
    addLinks(ed, {{1, 2}, {2, 3}, {1, 2}});
    appendLink(ed, defaultLink(ed, 1, 99));
    linkAt(ed, 3).Used = false;
    move(1000, 1000);
    press(1000, 1000);
    for (const bool same : {false, true}) {
        ed.buttons.same = same;
        move(2000, 5000.5F);
        EXPECT_EQ(placesOf(ed), "2000,5000 2000,1000 3000,1000 ");
        EXPECT_EQ(linkAt(ed, 1).CurrentLength, 4000);
        EXPECT_EQ(linkAt(ed, 1).RestLength, same ? 4000 : 1000);
        for (const std::int32_t other : {2, 3}) EXPECT_EQ(linkAt(ed, other).CurrentLength, 1000);
    }
    ed.SelectedNode = none;  // freed meanwhile
    move(3000, 1000);
    EXPECT_EQ(nodeAt(ed, 1).X, 2000);
    EXPECT_EQ(ed.HoverNode, none);
    release(3000, 1000);
    EXPECT_FALSE(ed.MouseIsDown);
}

TEST_F(Mouse, SelectsAndHoversLinks) {
    addNodes(ed, {{1000, 1000}, {3000, 1000}, {3000, 5000}});
    addLinks(ed, {{1, 2}, {2, 3}});
    linkAt(ed, 2).Animator = linkAt(ed, 2).Barrier = true;
    move(2000, 1000);
    EXPECT_EQ(ed.HoverLink, 1);
    click(3000, 3000);
    EXPECT_EQ(selections(ed), (Selections{none, none, 2, none}));
    EXPECT_EQ(ed.SelectedAnimatorLink, 2);
    EXPECT_TRUE(ed.buttons.barrier);
    EXPECT_EQ(lastNode(ed), 3);
    click(2000, 1000);  // no animator: the animator's highlight stays
    EXPECT_EQ(ed.SelectedLink, 1);
    EXPECT_EQ(ed.SelectedAnimatorLink, 2);
    for (const bool animator : {true, false}) {
        picS_DblClick(ed);
        EXPECT_EQ(linkAt(ed, 1).Animator, animator);
        EXPECT_EQ(ed.SelectedAnimatorLink, animator ? 1 : none);
    }
    ed.HoverLink = 2;
    move(2000, 1000);  // over the selected link itself
    EXPECT_EQ(ed.HoverLink, 2);
    move(6000, 6000);
    EXPECT_EQ(ed.HoverLink, none);
    EXPECT_EQ(panel(ed, 5), "");
    press(6000, 6000, rightButton);
    EXPECT_EQ(ed.SelectedLink, none);
    EXPECT_EQ(ed.SelectedAnimatorLink, none);
}

TEST_F(Mouse, OddPresses) {
    press(500, 500, middleButton);
    EXPECT_EQ(lastNode(ed), 0);
    release(500, 500, rightButton);
    EXPECT_TRUE(ed.sceneBlank);
    addNodes(ed, {{1000, 1000}});
    press(1000, 1000);  // it moved under a resting pointer: neither selected nor hovered
    EXPECT_EQ(ed.SelectedNode, none);
    EXPECT_FALSE(ed.MouseIsDown);
    ed.Timer1.enabled = true;
    click(4000, 4000);
    EXPECT_FALSE(ed.DrawMode);
}

TEST_F(Mouse, DrawsNoLinkToNumbersThatNameNoNode) {
    addNodes(ed, {{1000, 1000}, {3000, 3000}});
    nodeAt(ed, 2).Used = false;
    for (const std::int32_t stale : {2, 40}) {
        ed.DrawMode = true;
        ed.SelectedNode = stale;
        ed.HoverNode = none;
        press(6000, 6000.F + 500.F * static_cast<float>(stale));
        EXPECT_EQ(lastLink(ed), 0);
    }
    ed.HoverNode = 40;  // the far end is then the new node
    press(9000, 2000);
    EXPECT_EQ(endsOf(ed), "4-5 ");
}

}  // namespace
}  // namespace zentrik
