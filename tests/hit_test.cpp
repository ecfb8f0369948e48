#include "edit/hit.h"

#include "model/store.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace zentrik {
namespace {

using scenes::addLink;
using scenes::addNode;

TEST(Hit, NodesAnswerStrictlyWithinTheirBoxLowestNumberFirst) {
    Editor ed = scenes::fullScreen();
    addNode(ed, 5000, 5000);
    nodeAt(ed, 1).Used = false;
    addNode(ed, 1000, 2000);
    addNode(ed, 1050, 2000);
    struct {
        std::int32_t hitRadius;
        float x, y;
        std::int32_t found;
    } const cases[] = {
        {90, 1000, 2000, 2},   {90, 1089, 2089, 2},     {90, 1090, 2000, 3},    {90, 910, 2000, none},
        {90, 910.5F, 2000, 2}, {90, 1140, 2000, none},  {90, 1050, 2090, none}, {90, 5000, 5000, none},
        {130, 1129, 1871, 2},  {130, 1000, 1870, none}, {0, 1000, 2000, none},  {-40, 1000, 2000, none},
    };
    for (const auto& c : cases) {
        ed.HitRadius = c.hitRadius;
        std::int32_t over = 77;
        EXPECT_EQ(OverNode(ed, c.x, c.y, over), c.found != none);
        EXPECT_EQ(over, c.found) << c.hitRadius << " at " << c.x << ", " << c.y;
    }
}

TEST(Hit, LinksAnswerAtTheirMidpointOnly) {
    Editor ed = scenes::fullScreen();
    addNode(ed, 0, 0);
    addNode(ed, 1, 0);
    addNode(ed, 1000, 0);
    appendLink(ed, defaultLink(ed, 1, 50));  // its far end is not there
    addLink(ed, 1, 2);
    ed.HitRadius = 1;
    EXPECT_EQ(linkAtPoint(ed, 1.4F, 0), 2);
    EXPECT_EQ(linkAtPoint(ed, -0.4F, 0), 2);
    EXPECT_EQ(linkAtPoint(ed, -0.5F, 0), none);
    linkAt(ed, 2).Used = false;
    EXPECT_EQ(linkAtPoint(ed, 0.5F, 0), none);
    addLink(ed, 1, 3);
    ed.HitRadius = 90;
    EXPECT_EQ(linkAtPoint(ed, 580, 0), 3);
    EXPECT_EQ(linkAtPoint(ed, 300, 0), none);
}

TEST(Hit, DescribesWhatItFound) {
    Editor ed = scenes::fullScreen();
    addNode(ed, 0, 0);
    addNode(ed, 1000, 0);
    nodeAt(ed, 2).Locked = true;
    nodeAt(ed, 2).Mass = 2.5F;
    nodeAt(ed, 2).Gravity = -3;
    addLink(ed, 1, 2);
    std::int32_t over = none;
    OverNode(ed, 0, 0, over);
    EXPECT_EQ(panel(ed, 5), "Node: 1   UnLocked    Mass: 1   Force: 0");
    OverNode(ed, 1000, 0, over);
    EXPECT_EQ(panel(ed, 5), "Node: 2   Locked    Mass: 2.5    Force: -3");
    OverNode(ed, 9000, 9000, over);
    OverLink(ed, 9000, 9000, over);
    EXPECT_EQ(panel(ed, 5), "Node: 2   Locked    Mass: 2.5    Force: -3");
    OverLink(ed, 500, 0, over);
    EXPECT_EQ(panel(ed, 5), "Link: 1");
    linkAt(ed, 1).Animator = true;
    OverLink(ed, 500, 0, over);
    EXPECT_EQ(panel(ed, 5), "Link: 1  (animated)");
}

TEST(Hit, SteppingWrapsOverUsedSlotsOnly) {
    struct {
        std::vector<int> used;
        std::int32_t from, to;
    } const cases[] = {
        {{2, 5, 9}, 9, 2}, {{2, 5, 9}, none, 2}, {{2, 5, 9}, 5, 9}, {{2, 5, 9}, 3, 5}, {{5}, 5, 5},
        {{1}, 1, 1},       {{}, none, none},     {{}, 4, 4},        {{2, 5}, 9, 2},    {{2, 5}, 40, 2},
    };
    for (const auto& c : cases) {
        Editor ed;
        for (int i = 1; i <= 9; ++i) {
            addNode(ed, 0, 0);
            addLink(ed, 1, 1);
            const bool used = std::find(c.used.begin(), c.used.end(), i) != c.used.end();
            nodeAt(ed, i).Used = linkAt(ed, i).Used = used;
        }
        ed.SelectedNode = ed.SelectedLink = c.from;
        NextNode(ed);
        NextLink(ed);
        EXPECT_EQ(ed.SelectedNode, c.to) << "from " << c.from;
        EXPECT_EQ(ed.SelectedLink, c.to) << "from " << c.from;
    }
}

// The sweep must agree with the plain scan on crowded, scattered and extreme models alike.
TEST(Hit, ManyPointsAtOnceAgreeWithOneByOne) {
    constexpr std::int32_t big = std::numeric_limits<std::int32_t>::max();
    std::mt19937 random(7);
    for (const std::int32_t span : {3, 200, 20000, big})
        for (const std::int32_t hitRadius : {-90, 0, 1, 90, 5000, big}) {
            Editor ed;
            ed.HitRadius = hitRadius;
            std::uniform_int_distribution<std::int32_t> at(-span, span);
            std::vector<PointF> points;
            for (int i = 0; i < 300; ++i) {
                addNode(ed, at(random), at(random));
                ed.Nodes.back().Used = i % 7 != 0;
                // Half of the points lie on or beside a node's box.
                const PointF far{static_cast<float>(at(random)), static_cast<float>(at(random))};
                const float edge = static_cast<float>(hitRadius);
                const PointF near{static_cast<float>(ed.Nodes.back().X) + edge,
                                  static_cast<float>(ed.Nodes.back().Y) - (i % 3 ? 0 : edge)};
                points.push_back(i % 2 ? far : near);
            }
            const std::vector<std::int32_t> found = nodesAtPoints(ed, points);
            for (std::size_t p = 0; p < points.size(); ++p)
                ASSERT_EQ(found[p], nodeAtPoint(ed, points[p].x, points[p].y))
                    << "span " << span << " hit radius " << hitRadius;
        }
}

}  // namespace
}  // namespace zentrik
