// Creating, deleting, compacting, and the objects that links hold together.

#include "model/store.h"

#include "model/connected.h"
#include "plain_step.h"
#include "random_model.h"
#include "rig.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

namespace zentrik {

namespace {

using scenes::addLink;
using scenes::addNode;

Editor withNodes(int count) {
    Editor ed;
    for (int i = 1; i <= count; ++i) addNode(ed, i * 100, 0);
    return ed;
}

}  // namespace

TEST(Store, CreatesLinksFromTheSelectedNode) {
    Editor ed = withNodes(3);
    CreateLink(ed);
    EXPECT_EQ(lastLink(ed), 0);
    ed.SelectedNode = 2;
    CreateLink(ed);
    EXPECT_EQ(ed.Links[1].N1, 2);
    EXPECT_EQ(ed.Links[1].N2, 4);  // the node that comes next
    ed.HoverNode = 1;
    ed.DefaultLinkK = 3;
    CreateLink(ed);
    EXPECT_EQ(ed.Links[2].N2, 1);
    EXPECT_EQ(ed.Links[2].k, 3.0F);
    EXPECT_EQ(ed.Links[2].Force, 0.2F);
    EXPECT_TRUE(ed.Links[2].Used);
    EXPECT_EQ(ed.Links[2].RestLength, 0.0F);
}

TEST(Store, DeletesANodeWithItsLinks) {
    Editor ed = withNodes(3);
    addLink(ed, 1, 2);
    addLink(ed, 2, 3);
    addLink(ed, 3, 1);
    DeleteNode(ed);  // none selected
    EXPECT_EQ(UsedNodes(ed), 3);
    ed.SelectedNode = ed.HoverNode = 2;
    ed.DrawMode = true;
    DeleteNode(ed);
    EXPECT_EQ(UsedNodes(ed), 2);
    EXPECT_EQ(UsedLinks(ed), 1);
    EXPECT_TRUE(ed.Links[3].Used);
    EXPECT_FALSE(ed.DrawMode);
    EXPECT_EQ(ed.SelectedNode, none);
    EXPECT_EQ(ed.HoverNode, none);
    // A new node never takes the freed slot.
    EXPECT_EQ(addNode(ed, 0, 0), 4);
    ed.SelectedLink = 3;
    DeleteLink(ed);
    EXPECT_EQ(UsedLinks(ed), 0);
    EXPECT_EQ(ed.SelectedLink, none);
    // Selections may outlive their slots.
    ed.SelectedNode = ed.SelectedLink = 99;
    DeleteNode(ed);
    DeleteLink(ed);
}

TEST(Store, CompactsToUsedRecordsInTheirOrder) {
    Editor ed = withNodes(5);
    for (const std::size_t free : {1U, 3U, 4U}) ed.Nodes[free].Used = false;
    addLink(ed, 5, 2);
    ScriptedHost host;
    ed.SelectedNode = 5;
    mnuCompact_Click(ed, host);
    ASSERT_EQ(lastNode(ed), 2);
    EXPECT_EQ(ed.Nodes[1].X, 200);
    EXPECT_EQ(ed.Nodes[2].X, 500);
    EXPECT_EQ(ed.Links[1].N1, 2);
    EXPECT_EQ(ed.Links[1].N2, 1);
    EXPECT_EQ(ed.panels[4], "Compact complete.   Nodes: 5 to 2      Links: 1 to 1");
    EXPECT_EQ(ed.SelectedNode, 5);
    EXPECT_EQ(host.transcript, "");
}

TEST(Store, CompactsLinksToNodesThatAreNotThere) {
    Editor ed = withNodes(2);
    ed.Nodes[1].Used = false;
    for (const auto& [a, b] : {std::pair{1, 2}, {2, 7}, {-3, 2}}) appendLink(ed, defaultLink(ed, a, b));
    ScriptedHost host;
    mnuCompact_Click(ed, host);
    ASSERT_EQ(lastLink(ed), 3);
    forEachLink(ed, [](std::int32_t, const Link&) { ADD_FAILURE() << "an end exists"; });
}

TEST(Store, ClearingLeavesClockAndAnimatorSelection) {
    Editor ed = withNodes(2);
    addLink(ed, 1, 2);
    ed.AnimationTime = 3;
    ed.SelectedAnimatorLink = 1;
    ed.SelectedNode = ed.SelectedLink = ed.HoverLink = 1;
    ClearAnimation(ed);
    EXPECT_EQ(UsedNodes(ed) + UsedLinks(ed), 0);
    EXPECT_EQ(ed.panels[0] + "|" + ed.panels[1] + "|" + ed.panels[2], "Nodes: 0|Links: 0|Cycles: 0");
    EXPECT_EQ(ed.AnimationTime, 3.0F);
    EXPECT_EQ(ed.SelectedAnimatorLink, 1);
    EXPECT_EQ(ed.SelectedNode, none);
    EXPECT_EQ(ed.HoverLink, none);
}

TEST(Connected, MarksWhatThePlainSearchMarks) {
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        Editor ed = randomModel(seed);
        for (std::int32_t start = 1; start <= lastNode(ed); start += 3) {
            Editor expected = ed;
            plain::markConnected(expected, start);
            std::int32_t from = start;
            MarkConnectedNodes(ed, from, none);  // on top of the marks of the last search
            for (std::int32_t i = 1; i <= lastNode(ed); ++i)
                ASSERT_EQ(nodeAt(ed, i).Res3, nodeAt(expected, i).Res3) << "model " << seed;
            for (std::int32_t j = 1; j <= lastLink(ed); ++j)
                ASSERT_EQ(linkAt(ed, j).Res3, linkAt(expected, j).Res3) << "model " << seed;
        }
    }
}

TEST(Connected, StartsAtALinkWhenNoNodeIsGiven) {
    Editor ed = withNodes(5);
    addLink(ed, 3, 1);
    addLink(ed, 1, 2);
    addLink(ed, 3, 4);
    ed.Links[3].Used = false;  // two objects that touch only here stay apart
    std::int32_t node = none;
    MarkConnectedNodes(ed, node, 2);
    EXPECT_EQ(node, 1);
    EXPECT_TRUE(ed.Nodes[1].Res3 && ed.Nodes[2].Res3 && ed.Nodes[3].Res3);
    EXPECT_FALSE(ed.Nodes[4].Res3 || ed.Links[3].Res3);
    node = 5;
    MarkConnectedNodes(ed, node, none);
    EXPECT_TRUE(ed.Nodes[5].Res3);
    EXPECT_FALSE(ed.Nodes[1].Res3 || ed.Links[1].Res3);
    // Neither a node nor a link: nothing is marked.
    for (const std::int32_t link : {none, 0, 77}) {
        node = none;
        MarkConnectedNodes(ed, node, link);
        EXPECT_FALSE(ed.Nodes[5].Res3);
    }
    node = 77;
    MarkConnectedNodes(ed, node, none);
}

}  // namespace zentrik
