#include "edit/bulk.h"

#include "model/numbers.h"
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

template <class Record, class Value>
using Members = std::vector<std::pair<const char*, Value Record::*>>;

// The fields that differ from the record as it was, in words.
template <class Record>
std::string changed(const Record& is, const Record& was, const Members<Record, float>& reals,
                    const Members<Record, bool>& marks) {
    std::string text;
    for (const auto& [name, field] : reals)
        if (was.*field != is.*field) text += name + realText(is.*field) + " ";
    for (const auto& [name, field] : marks)
        if (was.*field != is.*field) text += (is.*field ? "+" : "-") + std::string(name) + " ";
    return text;
}
const Members<Node, float> nodeReals{{"m", &Node::Mass}, {"g", &Node::Gravity}, {"r", &Node::Rotate},
                                     {"vx", &Node::Vx},  {"vy", &Node::Vy},     {"fx", &Node::Fx},
                                     {"fy", &Node::Fy},  {"vxo", &Node::Vxo},   {"vyo", &Node::Vyo}};
const Members<Node, bool> nodeMarks{{"locked", &Node::Locked}, {"used", &Node::Used}};
const Members<Link, float> linkReals{{"k", &Link::k}, {"f", &Link::Force}, {"a", &Link::Angle}};
const Members<Link, bool> linkMarks{
    {"animator", &Link::Animator}, {"barrier", &Link::Barrier}, {"used", &Link::Used}};

std::string changed(const Node& is, const Node& was) {
    return changed(is, was, nodeReals, nodeMarks) +
           (was.Sprite != is.Sprite ? is.Sprite + std::to_string(is.SpriteIndex) + " " : "");
}
std::string changed(const Link& is, const Link& was) { return changed(is, was, linkReals, linkMarks); }
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

// A model after a command on it.
struct Done {
    Editor ed = twoPairs();
    ScriptedHost host;

    Done(Command command, bool object, std::int32_t selectedLink) {
        host.answers = {"7.1x"};
        ed.marks.mnuApplyChanges = object;
        ed.SelectedNode = selectedLink == 2 ? none : selectedLink;
        ed.SelectedLink = selectedLink;
        ed.marks.mnuDisplayAngleManager = true;
        ed.AnimationTime = 1;  // else every redraw of the scene draws the strip
        ed.sceneStale = ed.phaseStale = false;
        command(ed, host);
    }
};

TEST(Bulk, WholeModelTakesEverySlot) {
    for (const Row& row : rows) {
        Done done(row.command, false, none);
        EXPECT_EQ(panel(done.ed, 5), "All " + row.message);
        for (const std::int32_t i : {1, 3}) EXPECT_EQ(node(done.ed, i), row.node) << row.message;
        for (const std::int32_t j : {1, 2}) EXPECT_EQ(link(done.ed, j), row.link) << row.message;
        EXPECT_EQ(node(done.ed, 5), row.command == mnuRemoveNodes_Click ? "" : row.node);
        EXPECT_EQ(done.ed.phaseStale, row.link != "" && row.command != mnuDoubleF_Click) << row.message;
    }
}

TEST(Bulk, ObjectScopeTakesTheSelectedObjectOnly) {
    for (const Row& row : rows) {
        Done done(row.command, true, 2);  // its first end, node 3, becomes selected
        EXPECT_EQ(panel(done.ed, 5), "Object " + row.message);
        EXPECT_EQ(done.ed.SelectedNode, row.command == mnuRemoveNodes_Click ? none : 3);
        EXPECT_EQ(node(done.ed, 3), row.objectNode);
        EXPECT_EQ(link(done.ed, 2), row.link);
        for (const std::int32_t i : {1, 2, 5}) EXPECT_EQ(node(done.ed, i), "") << row.message;
        for (const std::int32_t j : {1, 3}) EXPECT_EQ(link(done.ed, j), "") << row.message;
    }
}

TEST(Bulk, ObjectScopeWithoutSelectionRefuses) {
    for (const Row& row : rows)
        for (const std::int32_t stale : {none, 70}) {
            Done done(row.command, true, stale);
            EXPECT_EQ(panel(done.ed, 5), "Select a node to execute this command!");
            const bool nodes = row.command == mnuResetAllNodes_Click;
            EXPECT_EQ(done.host.beeps, nodes ? 8 : row.command == mnuResetAllLinks_Click ? 6 : 1);
            EXPECT_TRUE(done.ed.sceneStale);
            EXPECT_EQ(node(done.ed, 3) + link(done.ed, 2), "") << row.message;
        }
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
    EXPECT_EQ(panel(ed, 5) + link(ed, 1), "");
}

TEST(Bulk, RemovalsClearTheSelectionsTheyAffect) {
    const std::pair<Command, Selections> cases[] = {{mnuRemoveNodes_Click, {none, none, none, none}},
                                                    {mnuRemoveLinks_Click, {1, 1, none, none}},
                                                    {mnuRemoveFreeNodes_Click, {none, none, none, none}}};
    for (const auto& [command, left] : cases) {
        Editor ed = twoPairs();
        ScriptedHost host;
        ed.SelectedNode = ed.HoverNode = ed.SelectedLink = ed.HoverLink = 1;
        command(ed, host);
        EXPECT_EQ(selections(ed), left);
    }
}

TEST(Bulk, FreeNodesAreThoseWithoutUsedLinks) {
    Editor ed = scenes::fullScreen();
    ScriptedHost host;
    scenes::addNodes(ed, {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}});
    scenes::addLinks(ed, {{1, 2}, {3, 3}, {4, 4}});
    appendLink(ed, defaultLink(ed, 5, 500));  // holds on to node 5 at least
    linkAt(ed, 1).Used = linkAt(ed, 3).Used = false;
    ed.marks.mnuApplyChanges = ed.marks.mnuDisplayAngleManager = true;
    ed.AnimationTime = 1;
    ed.phaseStale = false;
    mnuRemoveFreeNodes_Click(ed, host);
    EXPECT_EQ(flags(ed.Nodes, &Node::Used), "00101");
    EXPECT_EQ(panel(ed, 5), "All free nodes removed!");
    EXPECT_EQ(host.beeps, 0);
    EXPECT_TRUE(ed.phaseStale);
}

}  // namespace
}  // namespace zentrik
