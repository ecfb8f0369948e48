#include "edit/hit.h"

#include "rig.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace zentrik {
namespace {

TEST(Hit, NodesAnswerStrictlyWithinTheirBoxLowestNumberFirst) {
    Editor ed = scenes::fullScreen();
    scenes::addNodes(ed, {{5000, 5000}, {1000, 2000}, {1050, 2000}});
    nodeAt(ed, 1).Used = false;
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
    scenes::addNodes(ed, {{0, 0}, {1, 0}, {1000, 0}});
    appendLink(ed, defaultLink(ed, 1, 50));  // its far end is not there
    scenes::addLinks(ed, {{1, 2}, {1, 3}, {1, 2}});
    linkAt(ed, 4).Used = false;
    struct {
        std::int32_t hitRadius;
        float x;
        std::int32_t found;
    } const cases[] = {{1, 1.4F, 2}, {1, -0.4F, 2},   {1, -0.5F, none}, {90, 0, 2},
                       {90, 580, 3}, {90, 300, none}, {90, 590, none}};
    for (const auto& c : cases) {
        ed.HitRadius = c.hitRadius;
        EXPECT_EQ(linkAtPoint(ed, c.x, 0), c.found) << c.x;
    }
    linkAt(ed, 2).Used = false;
    EXPECT_EQ(linkAtPoint(ed, 0, 0), none);
}

TEST(Hit, DescribesWhatItFound) {
    Editor ed = scenes::fullScreen();
    scenes::addNodes(ed, {{0, 0}, {1000, 0}});
    nodeAt(ed, 2).Locked = true;
    nodeAt(ed, 2).Mass = 2.5F;
    nodeAt(ed, 2).Gravity = -3;
    scenes::addLink(ed, 1, 2);
    const std::pair<float, const char*> cases[] = {{0.F, "Node: 1   UnLocked    Mass: 1   Force: 0"},
                                                   {1000.F, "Node: 2   Locked    Mass: 2.5    Force: -3"},
                                                   {9000.F, "Node: 2   Locked    Mass: 2.5    Force: -3"},
                                                   {500.F, "Link: 1"}};
    for (const auto& [x, text] : cases) {
        std::int32_t over = none;
        if (!OverNode(ed, x, 0, over)) OverLink(ed, x, 0, over);
        EXPECT_EQ(panel(ed, 5), text);
    }
}

TEST(Hit, SteppingWrapsOverUsedSlotsOnly) {
    struct {
        std::string used;
        std::int32_t from, next, previous;
    } const cases[] = {
        {"010010001", 9, 2, 5},  {"010010001", none, 2, 9},       {"010010001", 5, 9, 2},
        {"010010001", 3, 5, 2},  {"000010000", 5, 5, 5},          {"100000000", 1, 1, 1},
        {"000000000", 4, 4, 4},  {"000000000", none, none, none}, {"010010000", 9, 2, 5},
        {"010010000", 40, 2, 5}, {"100000000", none, 1, 1},       {"100000000", 40, 1, 1},
        {"110000000", 1, 2, 2},
    };
    for (const auto& c : cases) {
        Editor ed;
        for (const char used : c.used) {
            nodeAt(ed, scenes::addNode(ed, 0, 0)).Used = used == '1';
            linkAt(ed, scenes::addLink(ed, 1, 1)).Used = used == '1';
        }
        ed.SelectedNode = ed.SelectedLink = c.from;
        NextNode(ed);
        NextLink(ed);
        EXPECT_EQ(selections(ed), (Selections{c.next, none, c.next, none})) << c.used << " from " << c.from;
        ed.SelectedNode = ed.SelectedLink = c.from;
        PreviousNode(ed);
        PreviousLink(ed);
        EXPECT_EQ(selections(ed), (Selections{c.previous, none, c.previous, none})) << c.used;
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
                scenes::addNode(ed, at(random), at(random));
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
