#include "edit/bulk.h"

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

// All that the commands may change, as text.
std::string nodeFields(const Node& n) {
    std::string text;
    for (const float value : {n.Mass, n.Gravity, n.Rotate, n.Vx, n.Vy, n.Fx, n.Fy, n.Vxo, n.Vyo})
        text += std::to_string(static_cast<int>(value)) + " ";
    return text + (n.Locked ? "locked " : "loose ") + (n.Used ? "used " : "free ") + n.Sprite + " " +
           std::to_string(n.SpriteIndex);
}
std::string linkFields(const Link& l) {
    return std::to_string(l.k).substr(0, 4) + " " + std::to_string(l.Force).substr(0, 4) + " " +
           std::to_string(static_cast<int>(l.Angle)) + (l.Animator ? " animator" : "") +
           (l.Barrier ? " barrier" : "") + (l.Used ? " used" : " free");
}

struct Row {
    Command command;
    const char *node, *link;  // fields afterwards; null: unchanged
    const char *objectMessage, *allMessage;
    const char* objectNode = nullptr;  // where the object's nodes come out otherwise
};

const Row rows[] = {
    {mnuResetMass_Click, "1 9 9 9 9 9 9 9 9 loose used face.png 3", nullptr,
     "Object nodes masses reset to 1!", "All node masses reset to 1!"},
    {mnuResetGravity_Click, "9 1 9 9 9 9 9 9 9 loose used face.png 3", nullptr,
     "Object node gravitational forces reset to 1!", "All node gravitational forces reset to 1!"},
    {mnuResetRotationalForces_Click, "9 9 0 9 9 9 9 9 9 loose used face.png 3", nullptr,
     "Object node rotational forces reset to 0!", "All node rotational forces reset to 0!"},
    {mnuResetInitial_Click, "9 9 9 9 9 9 9 0 0 loose used face.png 3", nullptr,
     "Object node initial velocities reset to 0!", "All node initial velocities reset to 0!"},
    {mnuResetVelocity_Click, "9 9 9 0 0 0 0 9 9 loose used face.png 3", nullptr,
     "Object node velocities reset to 0!", "All node velocities reset to 0!",
     "9 9 9 0 0 9 9 9 9 loose used face.png 3"},
    {mnuResetSprites_Click, "9 9 9 9 9 9 9 9 9 loose used <none> 0", nullptr,
     "Object node sprites reset to <none>!", "All node sprites reset to <none>!"},
    {mnuLockAll_Click, "9 9 9 9 9 9 9 9 9 locked used face.png 3", nullptr, "Object nodes locked!",
     "All nodes locked!"},
    {mnuClearAnimators_Click, nullptr, "9.00 9.00 9 barrier used", "Object link animators reset!",
     "All link animators reset!"},
    {mnuResetK_Click, nullptr, "5.00 9.00 9 animator barrier used", "Object link k's reset to 5 !",
     "All link k's reset to 5 !"},
    {mnuResetAngle_Click, nullptr, "9.00 9.00 0 animator barrier used", "Object link phase angles set to 0!",
     "All link phase angles set to 0!"},
    {mnuResetForce_Click, nullptr, "9.00 0.20 9 animator barrier used",
     "Object link animator forces reset to 0.2 !", "All link animator forces reset to 0.2 !"},
    {mnuResetBarriers_Click, nullptr, "9.00 9.00 9 animator used", "Object link barriers reset!",
     "All link barriers reset!"},
    {mnuSetLinkK_Click, nullptr, "7.10 9.00 9 animator barrier used", "Object link k's set to 7.1 !",
     "All link k's set to 7.1 !"},
    {mnuSetLinkF_Click, nullptr, "9.00 7.10 9 animator barrier used", "Object link f's set to 7.1 !",
     "All link f's set to 7.1 !"},
    {mnuDoubleK_Click, nullptr, "18.0 9.00 9 animator barrier used", "Object link k's doubled!",
     "All link k's doubled!"},
    {mnuHalfK_Click, nullptr, "4.50 9.00 9 animator barrier used", "Object link k's halved!",
     "All link k's halved!"},
    {mnuDoubleF_Click, nullptr, "9.00 18.0 9 animator barrier used", "Object link animator forces doubled!",
     "All link animator forces doubled!"},
    {mnuHalveF_Click, nullptr, "9.00 4.50 9 animator barrier used", "Object link animator forces halved!",
     "All link animator forces halved!"},
    {mnuRemoveNodes_Click, "9 9 9 9 9 9 9 9 9 loose free face.png 3", "9.00 9.00 9 animator barrier free",
     "Object nodes removed!", "All nodes removed!"},
    {mnuRemoveLinks_Click, nullptr, "9.00 9.00 9 animator barrier free", "Object links removed!",
     "All links removed!"},
    {mnuResetAllNodes_Click, "1 1 0 0 0 0 0 0 0 loose used <none> 0", nullptr,
     "Object node properties reset!", "All node properties reset!", "1 1 0 0 0 9 9 0 0 loose used <none> 0"},
    {mnuResetAllLinks_Click, nullptr, "5.00 0.20 0 used", "Object link properties reset!",
     "All link properties reset!"},
};

TEST(Bulk, WholeModelTakesEverySlot) {
    for (const Row& row : rows) {
        Editor ed = twoPairs();
        ScriptedHost host;
        host.answers = {"7.1x"};
        row.command(ed, host);
        SCOPED_TRACE(row.allMessage);
        EXPECT_EQ(panel(ed, 5), row.allMessage);
        for (const std::int32_t i : {1, 3})
            EXPECT_EQ(nodeFields(nodeAt(ed, i)), row.node ? row.node : nodeFields(nodeAt(twoPairs(), i)));
        for (const std::int32_t j : {1, 2})
            EXPECT_EQ(linkFields(linkAt(ed, j)), row.link ? row.link : linkFields(linkAt(twoPairs(), j)));
        EXPECT_EQ(nodeFields(nodeAt(ed, 5)) != nodeFields(nodeAt(twoPairs(), 5)),
                  row.node && row.command != mnuRemoveNodes_Click);
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
        SCOPED_TRACE(row.objectMessage);
        EXPECT_EQ(panel(ed, 5), row.objectMessage);
        EXPECT_EQ(ed.SelectedNode, row.command == mnuRemoveNodes_Click ? none : 3);
        const char* node = row.objectNode ? row.objectNode : row.node;
        EXPECT_EQ(nodeFields(nodeAt(ed, 3)), node ? node : nodeFields(nodeAt(twoPairs(), 3)));
        EXPECT_EQ(linkFields(linkAt(ed, 2)), row.link ? row.link : linkFields(linkAt(twoPairs(), 2)));
        for (const std::int32_t i : {1, 2, 5})
            EXPECT_EQ(nodeFields(nodeAt(ed, i)), nodeFields(nodeAt(twoPairs(), i)));
        for (const std::int32_t j : {1, 3})
            EXPECT_EQ(linkFields(linkAt(ed, j)), linkFields(linkAt(twoPairs(), j)));
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
            SCOPED_TRACE(row.objectMessage);
            EXPECT_EQ(panel(ed, 5), "Select a node to execute this command!");
            EXPECT_EQ(host.beeps, row.command == mnuResetAllNodes_Click   ? 8
                                  : row.command == mnuResetAllLinks_Click ? 6
                                                                          : 1);
            EXPECT_TRUE(ed.sceneStale);
            EXPECT_EQ(nodeFields(nodeAt(ed, 3)), nodeFields(nodeAt(twoPairs(), 3)));
            EXPECT_EQ(linkFields(linkAt(ed, 2)), linkFields(linkAt(twoPairs(), 2)));
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
        EXPECT_EQ(redraws(row.command), row.link && row.command != mnuDoubleF_Click) << row.allMessage;
    EXPECT_TRUE(redraws(mnuRemoveFreeNodes_Click));
}

TEST(Bulk, UnlocksAsItLocks) {
    for (const bool object : {true, false}) {
        Editor ed = twoPairs();  // nodes 2 and 4 are locked
        ScriptedHost host;
        ed.marks.mnuApplyChanges = object;
        ed.SelectedNode = 4;
        mnuUnlockAll_Click(ed, host);
        EXPECT_EQ(nodeAt(ed, 2).Locked, object);
        EXPECT_FALSE(nodeAt(ed, 4).Locked);
        EXPECT_EQ(panel(ed, 5), object ? "Object nodes unlocked!" : "All nodes unlocked!");
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
