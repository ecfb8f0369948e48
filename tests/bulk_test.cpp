#include "edit/bulk.h"

#include "model/numbers.h"
#include "model/store.h"
#include "rig.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

namespace zentrik {
namespace {

using scenes::addLink;
using scenes::addNode;
using Command = void (*)(Editor&, Host&);

// Two objects, 1-2 and 3-4, and two free slots, with every field off its default.
Editor twoPairs() {
    Editor ed = scenes::fullScreen();
    for (int i = 1; i <= 5; ++i) {
        Node& node = nodeAt(ed, addNode(ed, 1000 * i, 1000));
        node.Mass = node.Gravity = node.Rotate = 9;
        node.Vx = node.Vy = node.Fx = node.Fy = node.Vxo = node.Vyo = 9;
        node.Sprite = "face.png";
        node.SpriteIndex = 3;
        node.Locked = i % 2 == 0;
    }
    for (const auto& [a, b] : {std::pair{1, 2}, {3, 4}, {1, 3}}) {
        Link& link = linkAt(ed, addLink(ed, a, b, 9));
        link.Force = 9;
        link.Angle = 9;
        link.Animator = link.Barrier = true;
    }
    nodeAt(ed, 5).Used = linkAt(ed, 3).Used = false;
    return ed;
}

// The fields that differ from the model as it was, in words.
template <class Record>
struct Changes {
    const Record &was, &is;
    std::string text;

    void note(const char* name, float Record::*field) {
        if (was.*field != is.*field) text += std::string(name) + realText(is.*field) + " ";
    }
    void note(const char* name, bool Record::*field) {
        if (was.*field != is.*field) text += std::string(is.*field ? "+" : "-") + name + " ";
    }
};

std::string changed(const Node& is, const Node& was) {
    Changes<Node> changes{was, is, ""};
    changes.note("m", &Node::Mass);
    changes.note("g", &Node::Gravity);
    changes.note("r", &Node::Rotate);
    changes.note("vx", &Node::Vx);
    changes.note("vy", &Node::Vy);
    changes.note("fx", &Node::Fx);
    changes.note("fy", &Node::Fy);
    changes.note("vxo", &Node::Vxo);
    changes.note("vyo", &Node::Vyo);
    changes.note("locked", &Node::Locked);
    changes.note("used", &Node::Used);
    if (was.Sprite != is.Sprite) changes.text += is.Sprite + std::to_string(is.SpriteIndex) + " ";
    return changes.text;
}
std::string changed(const Link& is, const Link& was) {
    Changes<Link> changes{was, is, ""};
    changes.note("k", &Link::k);
    changes.note("f", &Link::Force);
    changes.note("a", &Link::Angle);
    changes.note("animator", &Link::Animator);
    changes.note("barrier", &Link::Barrier);
    changes.note("used", &Link::Used);
    return changes.text;
}
std::string node(const Editor& ed, std::int32_t i) { return changed(nodeAt(ed, i), nodeAt(twoPairs(), i)); }
std::string link(const Editor& ed, std::int32_t j) { return changed(linkAt(ed, j), linkAt(twoPairs(), j)); }

struct Row {
    Command command;
    std::string node, link;  // changes of a used, loose node and a used link
    std::string message;     // after "Object " or "All "
    std::string objectNode = node;
};

// clang-format off
const Row rows[] = {
    {mnuResetGravity_Click, "g1 ", "", "node gravitational forces reset to 1!"},
    {mnuResetRotationalForces_Click, "r0 ", "", "node rotational forces reset to 0!"},
    {mnuResetInitial_Click, "vxo0 vyo0 ", "", "node initial velocities reset to 0!"},
    {mnuResetVelocity_Click, "vx0 vy0 fx0 fy0 ", "", "node velocities reset to 0!", "vx0 vy0 "},
    {mnuResetSprites_Click, "<none>0 ", "", "node sprites reset to <none>!"},
    {mnuLockAll_Click, "+locked ", "", "nodes locked!"},
    {mnuClearAnimators_Click, "", "-animator ", "link animators reset!"},
    {mnuResetK_Click, "", "k5 ", "link k's reset to 5 !"},
    {mnuResetAngle_Click, "", "a0 ", "link phase angles set to 0!"},
    {mnuResetForce_Click, "", "f0.2 ", "link animator forces reset to 0.2 !"},
    {mnuResetBarriers_Click, "", "-barrier ", "link barriers reset!"},
    {mnuSetLinkK_Click, "", "k7.1 ", "link k's set to 7.1 !"},
    {mnuSetLinkF_Click, "", "f7.1 ", "link f's set to 7.1 !"},
    {mnuDoubleK_Click, "", "k18 ", "link k's doubled!"},
    {mnuHalfK_Click, "", "k4.5 ", "link k's halved!"},
    {mnuDoubleF_Click, "", "f18 ", "link animator forces doubled!"},
    {mnuHalveF_Click, "", "f4.5 ", "link animator forces halved!"},
    {mnuRemoveNodes_Click, "-used ", "-used ", "nodes removed!"},
    {mnuRemoveLinks_Click, "", "-used ", "links removed!"},
    {mnuResetAllNodes_Click, "m1 g1 r0 vx0 vy0 fx0 fy0 vxo0 vyo0 <none>0 ", "", "node properties reset!",
     "m1 g1 r0 vx0 vy0 vxo0 vyo0 <none>0 "},
    {mnuResetAllLinks_Click, "", "k5 f0.2 a0 -animator -barrier ", "link properties reset!"},
};
// clang-format on

TEST(Bulk, WholeModelTakesEverySlot) {
    for (const Row& row : rows) {
        Editor ed = twoPairs();
        ScriptedHost host;
        host.answers = {"7.1x"};
        row.command(ed, host);
        EXPECT_EQ(panel(ed, 5), "All " + row.message);
        for (const std::int32_t i : {1, 3}) EXPECT_EQ(node(ed, i), row.node) << row.message;
        for (const std::int32_t j : {1, 2}) EXPECT_EQ(link(ed, j), row.link) << row.message;
        EXPECT_EQ(node(ed, 5), row.command == mnuRemoveNodes_Click ? "" : row.node);
    }
}

TEST(Bulk, ObjectScopeTakesTheSelectedObjectOnly) {
    for (const Row& row : rows) {
        Editor ed = twoPairs();
        ScriptedHost host;
        host.answers = {"7.1"};
        ed.marks.mnuApplyChanges = true;
        ed.SelectedLink = 2;  // its first end, node 3, becomes selected
        row.command(ed, host);
        EXPECT_EQ(panel(ed, 5), "Object " + row.message);
        EXPECT_EQ(ed.SelectedNode, row.command == mnuRemoveNodes_Click ? none : 3);
        EXPECT_EQ(node(ed, 3), row.objectNode);
        EXPECT_EQ(link(ed, 2), row.link);
        EXPECT_EQ(node(ed, 1) + node(ed, 2) + node(ed, 5) + link(ed, 1) + link(ed, 3), "") << row.message;
    }
}

TEST(Bulk, ObjectScopeWithoutSelectionRefuses) {
    for (const Row& row : rows)
        for (const std::int32_t stale : {none, 70}) {
            Editor ed = twoPairs();
            ScriptedHost host;
            host.answers = {"7.1"};
            ed.marks.mnuApplyChanges = true;
            ed.SelectedNode = ed.SelectedLink = stale;
            ed.sceneStale = false;
            row.command(ed, host);
            EXPECT_EQ(panel(ed, 5), "Select a node to execute this command!");
            EXPECT_EQ(host.beeps, row.command == mnuResetAllNodes_Click   ? 8
                                  : row.command == mnuResetAllLinks_Click ? 6
                                                                          : 1);
            EXPECT_TRUE(ed.sceneStale);
            EXPECT_EQ(node(ed, 3) + link(ed, 2), "") << row.message;
        }
}

TEST(Bulk, OnlyTheirOwnCommandsRedrawTheStrip) {
    const auto redraws = [](Command command) {
        Editor ed = twoPairs();
        ScriptedHost host;
        host.answers = {"7"};
        ed.marks.mnuDisplayAngleManager = true;
        ed.AnimationTime = 1;  // else every redraw of the scene draws it
        ed.phaseStale = false;
        command(ed, host);
        return ed.phaseStale;
    };
    for (const Row& row : rows)
        EXPECT_EQ(redraws(row.command), row.link != "" && row.command != mnuDoubleF_Click) << row.message;
    EXPECT_TRUE(redraws(mnuRemoveFreeNodes_Click));
}

TEST(Bulk, UnlocksAndResetsMasses) {
    for (const bool object : {true, false}) {
        Editor ed = twoPairs();  // nodes 2 and 4 are locked
        ScriptedHost host;
        ed.marks.mnuApplyChanges = object;
        ed.SelectedNode = 4;
        mnuUnlockAll_Click(ed, host);
        EXPECT_EQ(panel(ed, 5), object ? "Object nodes unlocked!" : "All nodes unlocked!");
        mnuResetMass_Click(ed, host);
        EXPECT_EQ(panel(ed, 5), object ? "Object nodes masses reset to 1!" : "All node masses reset to 1!");
        EXPECT_EQ(node(ed, 4), "m1 -locked ");
        EXPECT_EQ(node(ed, 2), object ? "" : "m1 -locked ");
    }
}

TEST(Bulk, ValuesAreAskedFor) {
    Editor ed = twoPairs();
    ScriptedHost host;
    mnuSetLinkK_Click(ed, host);
    mnuSetLinkF_Click(ed, host);
    EXPECT_EQ(host.transcript,
              "input: Enter value for link k's:|Set All Link k's|5\n"
              "input: Enter value for link f's:|Set All link f's|0.2\n");
    EXPECT_EQ(panel(ed, 5), "");
    EXPECT_EQ(linkAt(ed, 1).k, 9);
    host.answers = {"stiff"};
    mnuSetLinkK_Click(ed, host);
    EXPECT_EQ(linkAt(ed, 1).k, 0);
    EXPECT_EQ(panel(ed, 5), "All link k's set to 0 !");
}

TEST(Bulk, RemovalsClearTheSelectionsTheyAffect) {
    struct {
        Command command;
        std::int32_t node, link;
    } const cases[] = {{mnuRemoveNodes_Click, none, none},
                       {mnuRemoveLinks_Click, 1, none},
                       {mnuRemoveFreeNodes_Click, none, none}};
    for (const auto& c : cases) {
        Editor ed = twoPairs();
        ScriptedHost host;
        ed.SelectedNode = ed.HoverNode = ed.SelectedLink = ed.HoverLink = 1;
        c.command(ed, host);
        EXPECT_EQ(ed.SelectedNode, c.node);
        EXPECT_EQ(ed.HoverNode, c.node);
        EXPECT_EQ(ed.SelectedLink, c.link);
        EXPECT_EQ(ed.HoverLink, c.link);
    }
}

TEST(Bulk, FreeNodesAreThoseWithoutUsedLinks) {
    Editor ed = scenes::fullScreen();
    ScriptedHost host;
    for (int i = 0; i < 5; ++i) addNode(ed, i, i);
    for (const auto& [a, b] : {std::pair{1, 2}, {3, 3}, {4, 4}}) addLink(ed, a, b);
    appendLink(ed, defaultLink(ed, 5, 500));  // holds on to node 5 at least
    linkAt(ed, 1).Used = linkAt(ed, 3).Used = false;
    ed.marks.mnuApplyChanges = true;
    mnuRemoveFreeNodes_Click(ed, host);
    std::string used;
    for (int i = 1; i <= 5; ++i) used += nodeAt(ed, i).Used ? '1' : '0';
    EXPECT_EQ(used, "00101");
    EXPECT_EQ(panel(ed, 5), "All free nodes removed!");
    EXPECT_EQ(host.beeps, 0);
}

}  // namespace
}  // namespace zentrik
