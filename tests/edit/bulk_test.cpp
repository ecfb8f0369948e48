// Removals, by their entries.

#include "desk.h"

#include <gtest/gtest.h>

namespace zentrik {
namespace {

TEST(Bulk, FreeNodesAreThoseWithoutUsedLinks) {
    Desk desk;
    Editor& ed = desk.ed;
    scenes::addNodes(ed, {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}});
    scenes::addLinks(ed, {{1, 2}, {3, 3}, {4, 4}});
    appendLink(ed, defaultLink(ed, 5, 500));  // holds on to node 5 at least
    linkAt(ed, 1).Used = linkAt(ed, 3).Used = false;
    ed.marks.mnuApplyChanges = ed.marks.mnuDisplayAngleManager = true;
    ed.AnimationTime = 1;
    ed.phaseStale = false;
    desk.choose("mnuRemoveFreeNodes");
    EXPECT_EQ(flags(ed.Nodes, &Node::Used), "00101");
    EXPECT_EQ(panel(ed, 5), "All free nodes removed!");
    EXPECT_EQ(desk.host.beeps, 0);
    EXPECT_TRUE(ed.phaseStale);
}

}  // namespace
}  // namespace zentrik
