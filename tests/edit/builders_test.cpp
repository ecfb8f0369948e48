// Rings and midpoints, by their entries.

#include "basics/numbers.h"
#include "desk.h"

#include <gtest/gtest.h>

namespace zentrik {
namespace {

// A scene with node 1 selected, and what an entry makes of it.
struct Site : Desk {
    explicit Site(const std::string& said, const char* entry) {
        scenes::addNode(ed, 3000, 3000);
        ed.SelectedNode = 1;
        ed.DefaultLinkForce = 0.7F;
        answer(said);
        choose(entry);
    }
};

// Every link slot as "ends k force angle", the angle of animators only.
std::string linksOf(const Editor& ed) {
    std::string text;
    forEachLink(ed, [&](std::int32_t, const Link& link) {
        text += std::to_string(link.N1) + "-" + std::to_string(link.N2) + " " + realText(link.k) + " " +
                realText(link.Force) + (link.Animator ? " " + realText(link.Angle) : "") + "|";
        EXPECT_EQ(link.RestLength, linkLength(ed, link));
        EXPECT_EQ(link.CurrentLength, link.RestLength);
    });
    return text;
}

TEST(Builders, RingsStandWhereTheyShouldWithTheirLinks) {
    const std::string title = "Create Connected Node Ring With Spokes";
    const std::string rim = "2-3 5 0.7|3-4 5 0.7|4-5 5 0.7|2-5 5 0.7|";
    struct {
        const char* entry;
        std::string title, message, links;
    } const cases[] = {
        {"mnuCreateNodeRing", "Create Node Ring", "Node ring", ""},
        {"mnuCreateConnectedNodeRing", "Create Connected Node Ring", "Connected node ring", rim},
        {"mnuCreateConnectedNodeRingWithSpokes", title, "Connected node ring with spokes",
         rim + "1-2 2 0.2 0|1-3 2 0.2 90|1-4 2 0.2 180|1-5 2 0.2 270|"},
        {"mnuCreateConnectedNodeRingWithSpokesNo", title, "Connected node ring with spokes",
         rim + "1-2 2 0.2|1-3 2 0.2|1-4 2 0.2|1-5 2 0.2|"},
        {"mnuCreateConnectedNodeRingWithLongSpokes", title, "Connected node ring with spokes",
         rim + "2-4 5 0.7 0|3-5 5 0.7 180|"},
    };
    for (const auto& c : cases) {
        Site site("4:500", c.entry);
        EXPECT_EQ(site.host.transcript, "input: Enter parameters (nodes:radius):|" + c.title + "|20:1000\n");
        EXPECT_EQ(placesOf(site.ed, 2), "3000,3500 3500,3000 3000,2500 2500,3000 ");
        EXPECT_EQ(nodeAt(site.ed, 2).Trigger, none);
        EXPECT_EQ(linksOf(site.ed), c.links);
        EXPECT_EQ(selections(site.ed), (Selections{5, 5, none, none}));
        EXPECT_EQ(panel(site.ed, 5), c.message + " created (4 : 500)");
        EXPECT_EQ(site.ed.StructureParm, "4:500");
    }
    EXPECT_EQ(endsOf(Site("1:400", "mnuCreateConnectedNodeRing").ed), "2-2 ");
    EXPECT_EQ(endsOf(Site("2:400", "mnuCreateConnectedNodeRing").ed), "2-3 2-3 ");
    // Halves are rounded to the even slot, and no spoke leaves the ring.
    EXPECT_EQ(endsOf(Site("3:800", "mnuCreateConnectedNodeRingWithLongSpokes").ed, 4), "2-4 ");
    EXPECT_EQ(endsOf(Site("5:800", "mnuCreateConnectedNodeRingWithLongSpokes").ed, 6), "2-4 3-6 4-6 ");
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
        Site site(c.answer, "mnuCreateNodeRing");
        EXPECT_EQ(lastNode(site.ed), 1 + c.nodes) << c.answer;
        EXPECT_EQ(site.ed.StructureParm, c.remembered);
        EXPECT_EQ(site.ed.SelectedNode, 1 + c.nodes);
        if (c.answer == "100001:5") {
            EXPECT_EQ(panel(site.ed, 5), "A ring has at most 100000 nodes!");
        }
    }
}

TEST(Builders, MidpointSplitsTheLink) {
    Desk desk;
    Editor& ed = desk.ed;
    scenes::addNodes(ed, {{3000, 3000}, {4001, 3000}});
    Link old = defaultLink(ed, 1, 2);
    old.RestLength = 1000;
    old.CurrentLength = 900;
    old.k = 77;
    old.Animator = old.Barrier = true;
    ed.SelectedLink = appendLink(ed, old);
    desk.choose("mnuCreateNodeAtMidpoint");
    EXPECT_EQ(placesOf(ed, 3), "3500,3000 ");  // 3500.5, halves to even
    EXPECT_EQ(endsOf(ed), "- 2-3 1-3 ");
    for (const std::int32_t half : {2, 3}) {
        EXPECT_EQ(linkAt(ed, half).RestLength, 500);
        EXPECT_EQ(linkAt(ed, half).CurrentLength, 450);
        EXPECT_EQ(linkAt(ed, half).k, 5);
        EXPECT_FALSE(linkAt(ed, half).Animator || linkAt(ed, half).Barrier);
    }
    EXPECT_EQ(selections(ed), (Selections{3, 3, none, none}));
    EXPECT_EQ(panel(ed, 5), "Node added to center of selected link!");
}

}  // namespace
}  // namespace zentrik
