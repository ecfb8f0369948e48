#include "edit/objects.h"

#include "edit/hit.h"
#include "model/store.h"
#include "rig.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

#include <random>

namespace zentrik {
namespace {

using scenes::addLink;
using scenes::addNode;

std::pair<std::int32_t, std::int32_t> ends(const Editor& ed, std::int32_t j) {
    return {linkAt(ed, j).N1, linkAt(ed, j).N2};
}

// A triangle 1 2 3, a pair 4 5, and a free link between the two.
Editor twoObjects() {
    Editor ed = scenes::fullScreen();
    addNode(ed, 1000, 1000);
    addNode(ed, 3000, 1000);
    addNode(ed, 2000, 3000);
    addNode(ed, 6000, 6000);
    addNode(ed, 8000, 6000);
    for (const auto& [a, b] : {std::pair{1, 2}, {2, 3}, {3, 1}, {4, 5}, {3, 4}}) addLink(ed, a, b);
    linkAt(ed, 5).Used = false;
    return ed;
}

TEST(Objects, ConvertsTheSelectedObjectOnly) {
    struct {
        std::int32_t node, link;
        std::string lockedNodes, barriers, message;
    } const cases[] = {
        {2, none, "11100", "11100", "Object converted to barrier!"},
        {none, 4, "00011", "00010", "Object converted to barrier!"},
        {none, none, "00000", "00000", "Select a node to execute this command!"},
        {90, none, "00000", "00000", "Select a node to execute this command!"},
        {90, 4, "00011", "00010", "Object converted to barrier!"},
    };
    for (const auto& c : cases) {
        Editor ed = twoObjects();
        ScriptedHost host;
        ed.SelectedNode = c.node;
        ed.SelectedLink = c.link;
        ConvertObjectToBarrier(ed, host);
        std::string locked, barriers;
        for (int i = 1; i <= 5; ++i) locked += nodeAt(ed, i).Locked ? '1' : '0';
        for (int j = 1; j <= 5; ++j) barriers += linkAt(ed, j).Barrier ? '1' : '0';
        EXPECT_EQ(locked, c.lockedNodes);
        EXPECT_EQ(barriers, c.barriers);
        EXPECT_EQ(panel(ed, 5), c.message);
        EXPECT_EQ(host.beeps, c.message[0] == 'S' ? 1 : 0);
        EXPECT_EQ(ed.SelectedNode, none);
    }
}

TEST(Objects, DuplicatesTheWholeNodeRecord) {
    Editor ed = twoObjects();
    ScriptedHost host;
    Node& node = nodeAt(ed, 5);
    node.X = 1000;
    node.Y = 2000;
    node.Mass = 4;
    node.Vx = -3;
    node.Locked = true;
    node.color = 99;
    ed.SelectedNode = 5;
    ed.SelectedLink = 1;
    mnuDuplicateNode_Click(ed, host);
    ASSERT_EQ(lastNode(ed), 6);
    const Node& copy = nodeAt(ed, 6);
    EXPECT_EQ(std::pair(copy.X, copy.Y), std::pair(1250, 2250));
    EXPECT_EQ(copy.Mass, 4);
    EXPECT_EQ(copy.Vx, -3);
    EXPECT_TRUE(copy.Locked);
    EXPECT_EQ(copy.color, 99);
    EXPECT_EQ(ed.SelectedNode, 6);
    EXPECT_EQ(ed.HoverNode, 6);
    EXPECT_EQ(ed.SelectedLink, none);
    EXPECT_EQ(lastLink(ed), 5);
    EXPECT_EQ(panel(ed, 5), "Duplicate node created!");
    ed.SelectedNode = none;
    mnuDuplicateNode_Click(ed, host);
    mnuDuplicateObject_Click(ed, host);
    EXPECT_EQ(host.beeps, 2);
    EXPECT_EQ(lastNode(ed), 6);
    EXPECT_EQ(panel(ed, 5), "You must first select a node!");
}

TEST(Objects, DuplicatesAnObjectWithItsLinks) {
    Editor ed = twoObjects();
    ScriptedHost host;
    linkAt(ed, 2).Angle = 45;
    ed.SelectedNode = 3;
    mnuDuplicateObject_Click(ed, host);
    ASSERT_EQ(lastNode(ed), 8);
    ASSERT_EQ(lastLink(ed), 8);
    EXPECT_EQ(ends(ed, 6), std::pair(6, 7));
    EXPECT_EQ(ends(ed, 7), std::pair(7, 8));
    EXPECT_EQ(ends(ed, 8), std::pair(8, 6));
    EXPECT_EQ(linkAt(ed, 7).Angle, 45);
    EXPECT_EQ(ed.SelectedNode, 8);
    EXPECT_EQ(panel(ed, 5), "Duplicate object created!");
}

TEST(Objects, DuplicatedLinksJoinOlderNodesThatLieInTheWay) {
    Editor ed = scenes::fullScreen();
    ScriptedHost host;
    for (int i = 0; i < 3; ++i) addNode(ed, 1000 + 250 * i, 1000 + 250 * i);
    addLink(ed, 1, 2);
    addLink(ed, 2, 3);
    ed.SelectedNode = 1;
    mnuDuplicateObject_Click(ed, host);
    EXPECT_EQ(ends(ed, 3), std::pair(2, 3));
    EXPECT_EQ(ends(ed, 4), std::pair(3, 6));
}

TEST(Objects, DuplicateWithoutAHitBoxStillJoinsTheCopies) {
    Editor ed = twoObjects();
    ScriptedHost host;
    ed.HitRadius = -10;
    nodeAt(ed, 5).Used = false;  // a link to a freed node has no copy to join
    ed.SelectedNode = 4;
    mnuDuplicateObject_Click(ed, host);
    EXPECT_EQ(lastNode(ed), 6);
    EXPECT_EQ(lastLink(ed), 5);
    ed.SelectedNode = 1;
    mnuDuplicateObject_Click(ed, host);
    EXPECT_EQ(ends(ed, 6), std::pair(7, 8));
}

// Every copied link ends where the plain hit test, asked link by link, would put it.
TEST(Objects, DuplicatedLinksAgreeWithThePlainHitTest) {
    std::mt19937 random(3);
    for (int round = 0; round < 30; ++round) {
        Editor ed = scenes::fullScreen();
        ScriptedHost host;
        std::uniform_int_distribution<int> place(0, 4000), node(1, 60);
        for (int i = 0; i < 60; ++i) addNode(ed, place(random), place(random));
        for (int i = 0; i < 90; ++i) addLink(ed, node(random), node(random));
        ed.SelectedNode = node(random);
        const Editor before = ed;
        mnuDuplicateObject_Click(ed, host);
        std::int32_t copy = lastLink(before);
        for (std::int32_t j = 1; j <= lastLink(before); ++j) {
            if (!linkAt(ed, j).Res3) continue;
            const auto joined = [&](std::int32_t end) {
                return nodeAtPoint(ed, static_cast<float>(nodeAt(ed, end).X) + ed.GridSize,
                                   static_cast<float>(nodeAt(ed, end).Y) + ed.GridSize);
            };
            ++copy;
            ASSERT_EQ(ends(ed, copy), std::pair(joined(linkAt(ed, j).N1), joined(linkAt(ed, j).N2)));
        }
        ASSERT_EQ(copy, lastLink(ed));
    }
}

TEST(Objects, RoadRunsAcrossTheBottom) {
    Editor ed = scenes::fullScreen();
    ScriptedHost host;
    addNode(ed, 0, 0);
    mnuCreateRoad_Click(ed, host);
    ASSERT_EQ(lastNode(ed), 12);
    ASSERT_EQ(lastLink(ed), 11);
    EXPECT_FALSE(nodeAt(ed, 1).Locked);
    for (std::int32_t i = 2; i <= 12; ++i) {
        EXPECT_TRUE(nodeAt(ed, i).Locked);
        EXPECT_EQ(nodeAt(ed, i).X, ed.sceneWidth / 10 * (i - 2));
        EXPECT_LE(nodeAt(ed, i).Y, ed.sceneHeight);
        EXPECT_GE(nodeAt(ed, i).Y, ed.sceneHeight * 7 / 10);
    }
    EXPECT_NE(nodeAt(ed, 2).Y, nodeAt(ed, 3).Y);
    for (std::int32_t j = 1; j <= 10; ++j) {
        EXPECT_TRUE(linkAt(ed, j).Barrier);
        EXPECT_EQ(ends(ed, j), std::pair(j + 1, j + 2));
        EXPECT_EQ(linkAt(ed, j).RestLength, linkLength(ed, linkAt(ed, j)));
    }
    EXPECT_FALSE(linkAt(ed, 11).Used);
    EXPECT_EQ(ed.SelectedNode, none);
    EXPECT_EQ(panel(ed, 5), "Road Barrier Created");
}

}  // namespace
}  // namespace zentrik
