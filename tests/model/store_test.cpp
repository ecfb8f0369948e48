// Creating, deleting, compacting, and the objects that links hold together.

#include "model/store.h"

#include "edit/compact.h"

#include "desk.h"
#include "model/connected.h"
#include "plain_step.h"
#include "random_model.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

namespace zentrik {

namespace {

struct Store : testing::Test {
    Editor ed;

    void nodes(int count) {
        for (int i = 1; i <= count; ++i) scenes::addNode(ed, i * 100, 0);
    }
};

TEST_F(Store, CreatesLinksFromTheSelectedNode) {
    nodes(3);
    CreateLink(ed);
    EXPECT_EQ(lastLink(ed), 0);
    ed.SelectedNode = 2;
    CreateLink(ed);
    ed.HoverNode = 1;
    ed.DefaultLinkK = 3;
    CreateLink(ed);
    EXPECT_EQ(endsOf(ed), "2-4 2-1 ");  // the first to the node that comes next
    EXPECT_EQ(ed.Links[2].k, 3.0F);
    EXPECT_EQ(ed.Links[2].Force, 0.2F);
    EXPECT_EQ(ed.Links[2].RestLength, 0.0F);
}

TEST_F(Store, DeletesANodeWithItsLinks) {
    nodes(3);
    scenes::addLinks(ed, {{1, 2}, {2, 3}, {3, 1}});
    DeleteNode(ed);  // none selected
    EXPECT_EQ(UsedNodes(ed), 3);
    ed.SelectedNode = ed.HoverNode = 2;
    ed.DrawMode = true;
    DeleteNode(ed);
    EXPECT_EQ(placesOf(ed) + endsOf(ed), "100,0 - 300,0 - - 3-1 ");
    EXPECT_EQ(UsedNodes(ed) * 10 + UsedLinks(ed), 21);
    EXPECT_FALSE(ed.DrawMode);
    EXPECT_EQ(selections(ed), (Selections{none, none, none, none}));
    EXPECT_EQ(scenes::addNode(ed, 0, 0), 4) << "a new node never takes a freed slot";
    ed.SelectedLink = 3;
    DeleteLink(ed);
    EXPECT_EQ(UsedLinks(ed), 0);
    EXPECT_EQ(ed.SelectedLink, none);
}

TEST_F(Store, CompactsToUsedRecordsInTheirOrder) {
    nodes(5);
    for (const std::size_t free : {1U, 3U, 4U}) ed.Nodes[free].Used = false;
    for (const auto& [a, b] : {std::pair{5, 2}, {1, 2}, {2, 7}, {-3, 2}})
        appendLink(ed, defaultLink(ed, a, b));
    ScriptedHost host;
    ed.SelectedNode = 5;
    choose(ed, host, "mnuCompact");
    EXPECT_EQ(placesOf(ed), "200,0 500,0 ");
    EXPECT_EQ(endsOf(ed), "2-1 0-1 1-0 0-1 ") << "an end that is not there stays so";
    EXPECT_EQ(panel(ed, 5), "Compact complete.   Nodes: 5 to 2      Links: 4 to 4");
    EXPECT_EQ(ed.SelectedNode, 5);
    EXPECT_EQ(host.transcript, "");
}

TEST_F(Store, ClearingLeavesClockAndAnimatorSelection) {
    nodes(2);
    scenes::addLink(ed, 1, 2);
    ed.AnimationTime = 3;
    ed.Cycles = 7;
    ed.SelectedAnimatorLink = 1;
    ed.SelectedNode = ed.SelectedLink = ed.HoverLink = 1;
    ClearAnimation(ed);
    EXPECT_EQ(UsedNodes(ed) + UsedLinks(ed), 0);
    EXPECT_EQ(panel(ed, 1) + "|" + panel(ed, 2) + "|" + panel(ed, 3), "Nodes: 0|Links: 0|Cycles: 0");
    EXPECT_EQ(ed.AnimationTime, 3.0F);
    EXPECT_EQ(ed.Cycles, 7);
    EXPECT_EQ(ed.SelectedAnimatorLink, 1);
    EXPECT_EQ(selections(ed), (Selections{none, none, none, none}));
}

TEST(Connected, MarksWhatThePlainSearchMarks) {
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        Editor ed = randomModel(seed);
        for (std::int32_t start = 1; start <= lastNode(ed); start += 3) {
            Editor expected = ed;
            plain::markConnected(expected, start);
            std::int32_t from = start;
            MarkConnectedNodes(ed, from, none);  // on top of the marks of the last search
            ASSERT_EQ(flags(ed.Nodes, &Node::Marked), flags(expected.Nodes, &Node::Marked)) << seed;
            ASSERT_EQ(flags(ed.Links, &Link::Marked), flags(expected.Links, &Link::Marked)) << seed;
        }
    }
}

TEST_F(Store, AnObjectIsFoundFromItsLinkWhenNoNodeIsGiven) {
    nodes(5);
    scenes::addLinks(ed, {{3, 1}, {1, 2}, {3, 4}});
    ed.Links[3].Used = false;  // two objects that touch only here stay apart
    std::int32_t node = none;
    MarkConnectedNodes(ed, node, 2);
    EXPECT_EQ(node, 1);
    EXPECT_EQ(flags(ed.Nodes, &Node::Marked) + flags(ed.Links, &Link::Marked), "11100110");
    for (const auto& [from, link] : {std::pair{none, none}, {none, 0}, {none, 77}, {77, none}}) {
        node = from;
        MarkConnectedNodes(ed, node, link);
        EXPECT_EQ(flags(ed.Nodes, &Node::Marked) + flags(ed.Links, &Link::Marked), "00000000");
    }
}

}  // namespace

}  // namespace zentrik
