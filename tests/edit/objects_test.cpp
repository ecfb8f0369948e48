// Whole objects, by their entries and buttons.

#include "desk.h"

#include <gtest/gtest.h>

namespace zentrik {
namespace {

// A triangle 1 2 3, a pair 4 5, and a free link between the two.
struct Objects : testing::Test, Desk {
    Objects() {
        scenes::addNodes(ed, {{1000, 1000}, {3000, 1000}, {2000, 3000}, {6000, 6000}, {8000, 6000}});
        scenes::addLinks(ed, {{1, 2}, {2, 3}, {3, 1}, {4, 5}, {3, 4}});
        linkAt(ed, 5).Used = false;
    }
};

TEST_F(Objects, ConvertsTheSelectedObjectOnly) {
    const std::string converted = "Object converted to barrier!";
    const std::string refused = "Select a node to execute this command!";
    struct {
        std::int32_t node, link;
        std::string lockedNodes, barriers, message;
    } const cases[] = {
        {2, none, "11100", "11100", converted},  {none, 4, "00011", "00010", converted},
        {none, none, "00000", "00000", refused}, {90, none, "00000", "00000", refused},
        {90, 4, "00011", "00010", converted},
    };
    for (const auto& c : cases) {
        Desk desk = *this;
        Editor& model = desk.ed;
        model.SelectedNode = c.node;
        model.SelectedLink = c.link;
        desk.press("barrier");
        EXPECT_EQ(flags(model.Nodes, &Node::Locked), c.lockedNodes);
        EXPECT_EQ(flags(model.Links, &Link::Barrier), c.barriers);
        EXPECT_EQ(panel(model, 5), c.message);
        EXPECT_EQ(desk.host.beeps, c.message == refused);
        EXPECT_EQ(model.SelectedNode, none);
    }
}

TEST_F(Objects, DuplicatesTheWholeNodeRecord) {
    Node& node = nodeAt(ed, 5);
    node.Mass = 4;
    node.Vx = -3;
    node.Locked = true;
    node.color = 99;
    ed.SelectedNode = 5;
    ed.SelectedLink = 1;
    choose("mnuDuplicateNode");
    EXPECT_EQ(placesOf(ed, 6), "8250,6250 ");
    const Node& copy = ed.Nodes.back();
    EXPECT_TRUE(copy.Mass == 4 && copy.Vx == -3 && copy.Locked && copy.color == 99);
    EXPECT_EQ(selections(ed), (Selections{6, 6, none, none}));
    EXPECT_EQ(lastLink(ed), 5);
    EXPECT_EQ(panel(ed, 5), "Duplicate node created!");
}

TEST_F(Objects, DuplicatesAnObjectWithItsLinksEvenWithoutAHitBox) {
    ed.HitRadius = -10;
    nodeAt(ed, 5).Used = false;  // a link to a freed node has no copy to join
    ed.SelectedNode = 4;
    press("duplicate");
    EXPECT_EQ(placesOf(ed, 6), "6250,6250 ");
    EXPECT_EQ(lastLink(ed), 5);
    linkAt(ed, 2).Angle = 45;
    ed.SelectedNode = 3;
    choose("mnuDuplicateObject");
    EXPECT_EQ(placesOf(ed, 7), "1250,1250 3250,1250 2250,3250 ");
    EXPECT_EQ(endsOf(ed, 6), "7-8 8-9 9-7 ");
    EXPECT_EQ(linkAt(ed, 7).Angle, 45);
    EXPECT_EQ(ed.SelectedNode, 9);
    EXPECT_EQ(panel(ed, 5), "Duplicate object created!");
}

TEST_F(Objects, DuplicatedLinksJoinOlderNodesThatLieInTheWay) {
    ed.Nodes.resize(1);
    ed.Links.resize(1);
    scenes::addNodes(ed, {{1000, 1000}, {1250, 1250}, {1500, 1500}});
    scenes::addLinks(ed, {{1, 2}, {2, 3}});
    ed.SelectedNode = 1;
    choose("mnuDuplicateObject");
    EXPECT_EQ(endsOf(ed, 3), "2-3 3-6 ");
}

TEST_F(Objects, RoadRunsAcrossTheBottom) {
    choose("mnuCreateRoad");
    ASSERT_EQ(lastNode(ed), 16);
    EXPECT_EQ(flags(ed.Nodes, &Node::Locked), "00000" + std::string(11, '1'));
    for (std::int32_t i = 6; i <= 16; ++i) {
        EXPECT_EQ(nodeAt(ed, i).X, ed.sceneWidth / 10 * (i - 6));
        EXPECT_LE(nodeAt(ed, i).Y, ed.sceneHeight);
        EXPECT_GE(nodeAt(ed, i).Y, ed.sceneHeight * 7 / 10);
    }
    EXPECT_NE(nodeAt(ed, 6).Y, nodeAt(ed, 7).Y);
    EXPECT_EQ(endsOf(ed, 6), "6-7 7-8 8-9 9-10 10-11 11-12 12-13 13-14 14-15 15-16 - ");
    EXPECT_EQ(flags(ed.Links, &Link::Barrier), "00000" + std::string(10, '1') + "0");
    EXPECT_EQ(linkAt(ed, 6).RestLength, linkLength(ed, linkAt(ed, 6)));
    EXPECT_EQ(ed.SelectedNode, none);
    EXPECT_EQ(panel(ed, 5), "Road Barrier Created");
}

}  // namespace
}  // namespace zentrik
