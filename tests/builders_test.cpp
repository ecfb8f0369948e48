#include "edit/builders.h"

#include "model/store.h"
#include "rig.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

namespace zentrik {
namespace {

using scenes::addLink;
using scenes::addNode;

using Builder = void (*)(Editor&, Host&);

struct Site {
    Editor ed = scenes::fullScreen();
    ScriptedHost host;

    explicit Site(const std::string& answer = "") {
        addNode(ed, 3000, 3000);
        ed.SelectedNode = 1;
        host.answers = {answer};
    }
    Site& build(Builder builder) {
        builder(ed, host);
        return *this;
    }
};

TEST(Builders, NodeRingStandsWhereItShould) {
    Site site("8:500");
    Editor& ed = site.build(mnuCreateNodeRing_Click).ed;
    const std::int32_t places[][2] = {{3000, 3500}, {3354, 3354}, {3500, 3000}, {3354, 2646},
                                      {3000, 2500}, {2646, 2646}, {2500, 3000}, {2646, 3353}};
    ASSERT_EQ(lastNode(ed), 9);
    for (std::int32_t m = 0; m < 8; ++m) {
        EXPECT_EQ(nodeAt(ed, m + 2).X, places[m][0]) << m;
        EXPECT_EQ(nodeAt(ed, m + 2).Y, places[m][1]) << m;
        EXPECT_EQ(nodeAt(ed, m + 2).Res1, none);
    }
    EXPECT_EQ(lastLink(ed), 0);
    EXPECT_EQ(ed.SelectedNode, 9);
    EXPECT_EQ(ed.HoverNode, 9);
    EXPECT_EQ(panel(ed, 5), "Node ring created (8 : 500)");
    site.build(mnuCreateConnectedNodeRing_Click);
    EXPECT_EQ(site.host.transcript,
              "input: Enter parameters (nodes:radius):|Create Node Ring|20:1000\n"
              "input: Enter parameters (nodes:radius):|Create Connected Node Ring|8:500\n");
    EXPECT_EQ(lastNode(ed), 9);  // cancelled
}

TEST(Builders, AnswersThatBuildNothingOrLittle) {
    const std::string before = "20:1000";
    struct {
        std::string answer, remembered;
        std::int32_t nodes;
    } const cases[] = {
        {"8", before, 0},    {"8:500:2", before, 0},  {"", before, 0},           {"0:500", "0:500", 0},
        {"8:0", "8:0", 0},   {":", ":", 0},           {"abc:9", "abc:9", 0},     {"2.5:1000", "2.5:1000", 2},
        {"-3:9", "-3:9", 0}, {"2:1e30", "2:1e30", 2}, {"1e9:100", "1e9:100", 0}, {"100001:5", "100001:5", 0},
    };
    for (const auto& c : cases) {
        Site site(c.answer);
        const Editor& ed = site.build(mnuCreateNodeRing_Click).ed;
        EXPECT_EQ(lastNode(ed), 1 + c.nodes) << c.answer;
        EXPECT_EQ(ed.StructureParm, c.remembered);
        EXPECT_EQ(ed.SelectedNode, 1 + c.nodes);
    }
    Site huge("100001:5");
    EXPECT_EQ(panel(huge.build(mnuCreateNodeRing_Click).ed, 5), "A ring has at most 100000 nodes!");
}

TEST(Builders, RefuseWithoutTheirSelection) {
    const std::string needsNode = "This structure requires that you first select a node!";
    const std::pair<Builder, std::string> cases[] = {
        {mnuCreateNodeRing_Click, needsNode},
        {mnuCreateConnectedNodeRing_Click, needsNode},
        {mnuCreateConnectedNodeRingWithSpokes_Click, needsNode},
        {mnuCreateConnectedNodeRingWithSpokesNo_Click, needsNode},
        {mnuCreateConnectedNodeRingWithLongSpokes_Click, needsNode},
        {mnuCreateNodeAtMidpoint_Click, "You must first select a link!"},
    };
    for (const auto& [builder, message] : cases)
        for (const std::int32_t stale : {none, 1, 60}) {  // none, a free slot, no slot
            Site site("4:100");
            addLink(site.ed, 1, 1);
            nodeAt(site.ed, 1).Used = linkAt(site.ed, 1).Used = false;
            site.ed.SelectedNode = site.ed.SelectedLink = stale;
            site.build(builder);
            EXPECT_EQ(panel(site.ed, 5), message);
            EXPECT_EQ(site.host.beeps, 1);
            EXPECT_EQ(site.host.transcript, "");
            EXPECT_EQ(lastNode(site.ed), 1);
        }
}

TEST(Builders, ConnectedRingClosesItself) {
    for (const auto& [answer, ends] :
         {std::pair<std::string, std::vector<std::pair<int, int>>>{"1:400", {{2, 2}}},
          {"2:400", {{2, 3}, {2, 3}}},
          {"4:400", {{2, 3}, {3, 4}, {4, 5}, {2, 5}}}}) {
        Site site(answer);
        const Editor& ed = site.build(mnuCreateConnectedNodeRing_Click).ed;
        ASSERT_EQ(static_cast<std::size_t>(lastLink(ed)), ends.size());
        for (std::int32_t j = 1; j <= lastLink(ed); ++j) {
            const Link& link = linkAt(ed, j);
            EXPECT_EQ(std::pair(link.N1, link.N2), ends[static_cast<std::size_t>(j - 1)]);
            EXPECT_EQ(link.RestLength, linkLength(ed, link));
            EXPECT_EQ(link.CurrentLength, link.RestLength);
            EXPECT_EQ(link.k, 5);
        }
    }
}

TEST(Builders, Spokes) {
    for (const bool phased : {true, false}) {
        Site site("4:1000");
        site.ed.DefaultLinkForce = 0.7F;
        Editor& ed = site.build(phased ? mnuCreateConnectedNodeRingWithSpokes_Click
                                       : mnuCreateConnectedNodeRingWithSpokesNo_Click)
                         .ed;
        ASSERT_EQ(lastLink(ed), 8);
        EXPECT_EQ(linkAt(ed, 4).Force, 0.7F);
        for (std::int32_t m = 1; m <= 4; ++m) {
            const Link& spoke = linkAt(ed, 4 + m);
            EXPECT_EQ(spoke.N1, 1);
            EXPECT_EQ(spoke.N2, 1 + m);
            EXPECT_EQ(spoke.k, 2);
            EXPECT_EQ(spoke.Force, 0.2F);
            EXPECT_EQ(spoke.Animator, phased);
            EXPECT_EQ(spoke.Angle, phased ? static_cast<float>(90 * (m - 1)) : 0);
        }
        EXPECT_EQ(panel(ed, 5), "Connected node ring with spokes created (4 : 1000)");
    }
}

TEST(Builders, LongSpokesNeverLeaveTheRing) {
    Site even("4:1000");
    Editor& ed = even.build(mnuCreateConnectedNodeRingWithLongSpokes_Click).ed;
    ASSERT_EQ(lastLink(ed), 6);
    EXPECT_EQ(std::pair(linkAt(ed, 5).N1, linkAt(ed, 5).N2), std::pair(2, 4));
    EXPECT_EQ(std::pair(linkAt(ed, 6).N1, linkAt(ed, 6).N2), std::pair(3, 5));
    EXPECT_EQ(linkAt(ed, 6).Angle, 180);
    EXPECT_EQ(linkAt(ed, 6).k, 5);

    // Odd counts on both parities of the slots before.
    for (int nodes : {1, 3, 5, 7})
        for (int nodesBefore : {0, 1})
            for (int linksBefore : {0, 1}) {
                Site site(std::to_string(nodes) + ":800");
                for (int i = 0; i < nodesBefore; ++i) addNode(site.ed, 0, 0);
                for (int i = 0; i < linksBefore; ++i) addLink(site.ed, 1, 1);
                const Editor& odd = site.build(mnuCreateConnectedNodeRingWithLongSpokes_Click).ed;
                const std::int32_t rim = linksBefore + nodes;
                const std::int32_t spokes = lastLink(odd) - rim;
                EXPECT_EQ(spokes, (nodes - 1) / 2 + ((rim + (nodes - 1) / 2) % 2));
                for (std::int32_t j = rim + 1; j <= lastLink(odd); ++j)
                    EXPECT_TRUE(endsExist(odd, linkAt(odd, j)));
            }
}

TEST(Builders, MidpointSplitsTheLink) {
    Site site;
    Editor& ed = site.ed;
    addNode(ed, 4001, 3000);
    Link old = defaultLink(ed, 1, 2);
    old.RestLength = 1000;
    old.CurrentLength = 900;
    old.k = 77;
    old.Animator = old.Barrier = true;
    ed.SelectedLink = appendLink(ed, old);
    site.build(mnuCreateNodeAtMidpoint_Click);
    ASSERT_EQ(lastNode(ed), 3);
    ASSERT_EQ(lastLink(ed), 3);
    EXPECT_EQ(nodeAt(ed, 3).X, 3500);  // 3500.5, halves to even
    EXPECT_FALSE(linkAt(ed, 1).Used);
    EXPECT_EQ(std::pair(linkAt(ed, 2).N1, linkAt(ed, 2).N2), std::pair(2, 3));
    EXPECT_EQ(std::pair(linkAt(ed, 3).N1, linkAt(ed, 3).N2), std::pair(1, 3));
    for (const std::int32_t half : {2, 3}) {
        EXPECT_EQ(linkAt(ed, half).RestLength, 500);
        EXPECT_EQ(linkAt(ed, half).CurrentLength, 450);
        EXPECT_EQ(linkAt(ed, half).k, 5);
        EXPECT_FALSE(linkAt(ed, half).Animator || linkAt(ed, half).Barrier);
    }
    EXPECT_EQ(ed.SelectedNode, 3);
    EXPECT_EQ(ed.SelectedLink, none);
    EXPECT_EQ(panel(ed, 5), "Node added to center of selected link!");
}

}  // namespace
}  // namespace zentrik
