#include "edit/mouse.h"

#include "model/redraw.h"
#include "model/store.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

namespace zentrik {
namespace {

using scenes::addLink;
using scenes::addNode;

struct Mouse {
    Editor ed = scenes::fullScreen();

    void press(float x, float y, int button = leftButton) { picS_MouseDown(ed, button, x, y); }
    void release(float x, float y, int button = leftButton) { picS_MouseUp(ed, button, x, y); }
    void move(float x, float y) { picS_MouseMove(ed, 0, x, y); }
    void click(float x, float y, int button = leftButton) {
        move(x, y);
        press(x, y, button);
        release(x, y, button);
    }
    void doubleClick(float x, float y) {
        click(x, y);
        picS_DblClick(ed);
        release(x, y);
    }
};

TEST(Mouse, DrawsAChainAndClosesIt) {
    Mouse mouse;
    Editor& ed = mouse.ed;
    ed.NodeColor = 0x123456;
    mouse.click(1000, 1000);
    EXPECT_TRUE(ed.DrawMode);
    EXPECT_EQ(lastLink(ed), 0);
    mouse.click(2000, 1000);
    mouse.click(2000, 2000);
    mouse.move(1010, 1010);
    EXPECT_EQ(ed.HoverNode, 1);
    mouse.press(1010, 1010);
    EXPECT_EQ(ed.SelectedNode, 1);
    EXPECT_EQ(ed.HoverNode, none);
    ASSERT_EQ(lastNode(ed), 3);
    ASSERT_EQ(lastLink(ed), 3);
    const std::int32_t ends[][2] = {{1, 2}, {2, 3}, {3, 1}};
    for (std::int32_t j = 1; j <= 3; ++j) {
        EXPECT_EQ(linkAt(ed, j).N1, ends[j - 1][0]);
        EXPECT_EQ(linkAt(ed, j).N2, ends[j - 1][1]);
        EXPECT_FLOAT_EQ(linkAt(ed, j).RestLength, linkLength(ed, linkAt(ed, j)));
        EXPECT_FLOAT_EQ(linkAt(ed, j).CurrentLength, linkAt(ed, j).RestLength);
    }
    EXPECT_EQ(nodeAt(ed, 2).color, 0x123456);
    EXPECT_EQ(nodeAt(ed, 2).Mass, 1);
    EXPECT_EQ(nodeAt(ed, 2).Res1, none);
    EXPECT_EQ(panel(ed, 2), "Links: 3");

    mouse.release(1010, 1010);
    mouse.press(1010, 1010);  // the selected node: drawing goes on, nothing is linked
    EXPECT_EQ(lastLink(ed), 3);
    EXPECT_TRUE(ed.SelectedNodeClicked);
    EXPECT_TRUE(nodeAt(ed, 1).BeingDragged);
    mouse.release(1010, 1010);
    EXPECT_TRUE(nodeAt(ed, 1).JustReleased);
    EXPECT_FALSE(nodeAt(ed, 1).BeingDragged);

    mouse.press(5000, 5000, rightButton);  // leaves draw mode first, deselects next
    EXPECT_FALSE(ed.DrawMode);
    EXPECT_EQ(ed.SelectedNode, 1);
    mouse.press(5000, 5000, rightButton);
    EXPECT_EQ(ed.SelectedNode, none);
}

TEST(Mouse, ButtonsOfTheCommandBarGovernDrawing) {
    Mouse mouse;
    Editor& ed = mouse.ed;
    ed.buttons.same = false;
    mouse.click(1000, 1000);
    mouse.click(1000, 3000);
    EXPECT_EQ(linkAt(ed, 1).RestLength, 0);
    EXPECT_EQ(linkAt(ed, 1).CurrentLength, 2000);

    ed.buttons.draw = false;
    mouse.click(4000, 1000);
    mouse.click(1000, 1000);
    EXPECT_EQ(lastLink(ed), 1);
    EXPECT_EQ(ed.SelectedNode, 1);

    ed.buttons.snap = true;
    mouse.click(7130, 370);
    EXPECT_EQ(nodeAt(ed, 4).X, 7250);
    EXPECT_EQ(nodeAt(ed, 4).Y, 250);
}

TEST(Mouse, DraggingFollowsThePointerAndMeasuresItsLinks) {
    for (const bool same : {true, false}) {
        Mouse mouse;
        Editor& ed = mouse.ed;
        ed.buttons.same = same;
        addNode(ed, 1000, 1000);
        addNode(ed, 2000, 1000);
        addNode(ed, 3000, 1000);
        for (const auto& [a, b] : {std::pair{1, 2}, {2, 3}, {1, 2}, {1, 99}}) {
            Link link = defaultLink(ed, a, b);
            link.RestLength = link.CurrentLength = 7;
            appendLink(ed, link);
        }
        linkAt(ed, 3).Used = false;
        mouse.move(1000, 1000);
        mouse.press(1000, 1000);
        mouse.move(2000, 5000.5F);
        EXPECT_EQ(nodeAt(ed, 1).X, 2000);
        EXPECT_EQ(nodeAt(ed, 1).Y, 5000);
        EXPECT_EQ(linkAt(ed, 1).CurrentLength, 4000);
        EXPECT_EQ(linkAt(ed, 1).RestLength, same ? 4000 : 7);
        for (const std::int32_t untouched : {2, 3, 4}) EXPECT_EQ(linkAt(ed, untouched).CurrentLength, 7);

        ed.SelectedNode = none;  // freed meanwhile
        mouse.move(3000, 1000);
        EXPECT_EQ(nodeAt(ed, 1).X, 2000);
        EXPECT_EQ(ed.HoverNode, none);
        mouse.release(3000, 1000);
        EXPECT_FALSE(ed.MouseIsDown);
    }
}

TEST(Mouse, SelectsAndHoversLinks) {
    Mouse mouse;
    Editor& ed = mouse.ed;
    addNode(ed, 1000, 1000);
    addNode(ed, 3000, 1000);
    addNode(ed, 3000, 5000);
    addLink(ed, 1, 2);
    addLink(ed, 2, 3);
    linkAt(ed, 2).Animator = true;
    linkAt(ed, 2).Barrier = true;
    mouse.move(2000, 1000);
    EXPECT_EQ(ed.HoverLink, 1);
    EXPECT_EQ(panel(ed, 5), "Link: 1");
    mouse.click(3000, 3000);
    EXPECT_EQ(ed.SelectedLink, 2);
    EXPECT_EQ(ed.HoverLink, none);
    EXPECT_EQ(ed.SelectedAnimatorLink, 2);
    EXPECT_TRUE(ed.buttons.barrier);
    EXPECT_EQ(ed.SelectedNode, none);
    EXPECT_EQ(lastNode(ed), 3);
    mouse.click(2000, 1000);  // no animator: the animator's highlight stays
    EXPECT_EQ(ed.SelectedLink, 1);
    EXPECT_EQ(ed.SelectedAnimatorLink, 2);
    ed.HoverLink = 2;
    mouse.move(2000, 1000);  // over the selected link itself
    EXPECT_EQ(ed.HoverLink, 2);
    mouse.move(6000, 6000);
    EXPECT_EQ(ed.HoverLink, none);
    EXPECT_EQ(panel(ed, 5), "");
    mouse.press(6000, 6000, rightButton);
    EXPECT_EQ(ed.SelectedLink, none);
    EXPECT_EQ(ed.SelectedAnimatorLink, none);
}

TEST(Mouse, DoubleClickTogglesALinkAndDeletesOnlyTheSelectedNode) {
    Mouse mouse;
    Editor& ed = mouse.ed;
    addNode(ed, 1000, 1000);
    addNode(ed, 3000, 1000);
    addLink(ed, 1, 2);
    mouse.doubleClick(2000, 1000);
    EXPECT_TRUE(linkAt(ed, 1).Animator);
    EXPECT_EQ(ed.SelectedAnimatorLink, 1);
    mouse.doubleClick(2000, 1000);
    EXPECT_FALSE(linkAt(ed, 1).Animator);
    EXPECT_EQ(ed.SelectedAnimatorLink, none);
    EXPECT_EQ(panel(ed, 5), "Link: 1");

    mouse.doubleClick(1000, 1000);
    EXPECT_TRUE(nodeAt(ed, 1).Used);
    EXPECT_EQ(ed.SelectedNode, 1);
    mouse.doubleClick(1000, 1000);
    EXPECT_FALSE(nodeAt(ed, 1).Used);
    EXPECT_FALSE(linkAt(ed, 1).Used);
    EXPECT_EQ(ed.SelectedNode, none);
    EXPECT_FALSE(ed.DrawMode);
    EXPECT_EQ(panel(ed, 1), "Nodes: 1");
    EXPECT_EQ(panel(ed, 2), "Links: 0");
}

TEST(Mouse, OddPresses) {
    Mouse mouse;
    Editor& ed = mouse.ed;
    mouse.press(500, 500, middleButton);
    EXPECT_EQ(lastNode(ed), 0);
    mouse.release(500, 500, rightButton);
    EXPECT_TRUE(ed.sceneBlank);

    addNode(ed, 1000, 1000);
    mouse.press(1000, 1000);  // it moved under a resting pointer: neither selected nor hovered
    EXPECT_EQ(ed.SelectedNode, none);
    EXPECT_FALSE(ed.MouseIsDown);

    ed.Timer1.enabled = true;
    mouse.click(4000, 4000);
    EXPECT_FALSE(ed.DrawMode);
}

TEST(Mouse, DrawsNoLinkToNumbersThatNameNoNode) {
    Mouse mouse;
    Editor& ed = mouse.ed;
    addNode(ed, 1000, 1000);
    addNode(ed, 3000, 3000);
    nodeAt(ed, 2).Used = false;
    for (const std::int32_t stale : {2, 40}) {
        ed.DrawMode = true;
        ed.SelectedNode = stale;
        ed.HoverNode = none;
        mouse.press(6000, 6000.F + 500.F * static_cast<float>(stale));
        EXPECT_EQ(lastLink(ed), 0);
    }
    ed.HoverNode = 40;  // the far end is then the new node
    mouse.press(9000, 2000);
    ASSERT_EQ(lastLink(ed), 1);
    EXPECT_EQ(linkAt(ed, 1).N2, lastNode(ed));
    ed.SelectedNode = ed.SelectedLink = ed.HoverLink = 1000;
    ed.MouseIsDown = ed.SelectedNodeClicked = true;
    mouse.move(100, 100);
    picS_DblClick(ed);
    mouse.release(100, 100);
}

}  // namespace
}  // namespace zentrik
