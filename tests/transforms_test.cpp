#include "edit/transforms.h"

#include "model/store.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zentrik {
namespace {

using scenes::addLink;
using scenes::addNode;
using Transform = void (*)(Editor&);

void up(Editor& ed) { moveProject(ed, 0, -1); }
void down(Editor& ed) { moveProject(ed, 0, 1); }
void left(Editor& ed) { moveProject(ed, -1, 0); }
void right(Editor& ed) { moveProject(ed, 1, 0); }

// A bar 1-2, a far node 3, and a free slot 4 on top of node 1.
Editor barAndBall() {
    Editor ed;
    ed.sceneWidth = 10000;
    ed.sceneHeight = 8000;
    addNode(ed, 1000, 1000);
    addNode(ed, 3000, 1000);
    addNode(ed, 2000, 7000);
    addNode(ed, 1000, 1000);
    nodeAt(ed, 4).Used = false;
    addLink(ed, 1, 2);
    addLink(ed, 3, 3);
    appendLink(ed, defaultLink(ed, 1, 44));
    linkAt(ed, 2).RestLength = 5;
    return ed;
}

std::pair<int, int> place(const Editor& ed, std::int32_t i) { return {nodeAt(ed, i).X, nodeAt(ed, i).Y}; }

TEST(Transforms, WorkedPlaces) {
    using Place = std::pair<int, int>;
    struct {
        Transform transform;
        bool object;  // only the bar, else the whole project
        Place first, second, third, freeSlot;
        float length;
    } const cases[] = {
        {Increase, true, {800, 1000}, {3200, 1000}, {2000, 7000}, {1000, 1000}, 2400},
        {Decrease, true, {1200, 1000}, {2800, 1000}, {2000, 7000}, {1000, 1000}, 1600},
        {Increase, false, {800, 400}, {3200, 400}, {2000, 7600}, {800, 400}, 2400},
        {Decrease, false, {1200, 1600}, {2800, 1600}, {2000, 6400}, {1200, 1600}, 1600},
        {RotateAnimation, true, {1004, 913}, {2996, 1087}, {2000, 7000}, {1000, 1000}, 1999.5848F},
        {CenterAnimation, true, {4000, 4000}, {6000, 4000}, {2000, 7000}, {1000, 1000}, 2000},
        {CenterAnimation, false, {4000, 1000}, {6000, 1000}, {5000, 7000}, {4000, 1000}, 2000},
        {up, true, {1000, 750}, {3000, 750}, {2000, 7000}, {1000, 1000}, 2000},
        {down, false, {1000, 1250}, {3000, 1250}, {2000, 7250}, {1000, 1250}, 2000},
        {left, true, {750, 1000}, {2750, 1000}, {2000, 7000}, {1000, 1000}, 2000},
        {right, false, {1250, 1000}, {3250, 1000}, {2250, 7000}, {1250, 1000}, 2000},
    };
    int row = 0;
    for (const auto& c : cases) {
        SCOPED_TRACE(row++);
        Editor ed = barAndBall();
        ed.marks.mnuApplyChanges = c.object;
        ed.SelectedLink = 1;  // without the mark it does not matter
        c.transform(ed);
        EXPECT_EQ(place(ed, 1), c.first);
        EXPECT_EQ(place(ed, 2), c.second);
        EXPECT_EQ(place(ed, 3), c.third);
        EXPECT_EQ(place(ed, 4), c.freeSlot);
        EXPECT_FLOAT_EQ(linkAt(ed, 1).RestLength, c.length);
        EXPECT_FLOAT_EQ(linkAt(ed, 1).CurrentLength, c.length);
        const bool reshapes = c.length != 2000;
        EXPECT_EQ(linkAt(ed, 2).RestLength, reshapes && !c.object ? 0 : 5);
        EXPECT_EQ(ed.SelectedNode, c.object ? 1 : none);
    }
}

TEST(Transforms, WithNothingSelectedTheyTakeTheProjectButMovesTakeNothing) {
    for (const std::int32_t stale : {none, 99}) {
        for (const Transform transform : {Increase, Decrease, RotateAnimation, CenterAnimation}) {
            Editor ed = barAndBall(), whole = barAndBall();
            ed.marks.mnuApplyChanges = true;
            ed.SelectedNode = ed.SelectedLink = stale;
            transform(ed);
            transform(whole);
            EXPECT_NE(place(ed, 1), std::pair(1000, 1000));
            for (std::int32_t i = 1; i <= 4; ++i) EXPECT_EQ(place(ed, i), place(whole, i));
        }
        Editor ed = barAndBall();
        ed.marks.mnuApplyChanges = true;
        ed.SelectedNode = ed.SelectedLink = stale;
        up(ed);
        EXPECT_EQ(place(ed, 1), std::pair(1000, 1000));
    }
}

TEST(Transforms, TheBoxStartsFromTheScene) {
    Editor ed;
    ed.sceneWidth = 10000;
    ed.sceneHeight = 8000;
    addNode(ed, 12000, 2000);  // right of the scene: the box begins at its edge
    Increase(ed);
    EXPECT_EQ(place(ed, 1), std::pair(12200, 2000));

    Editor alone;
    alone.sceneWidth = 10000;
    alone.sceneHeight = 8000;
    addNode(alone, 2000, 2000);
    Increase(alone);
    EXPECT_EQ(place(alone, 1), std::pair(2000, 2000));
    alone.buttons.snap = true;
    alone.GridSize = 300;
    CenterAnimation(alone);
    EXPECT_EQ(place(alone, 1), std::pair(5100, 3900));
}

TEST(Transforms, AFullTurnComesBack) {
    Editor ed = barAndBall();
    for (int i = 0; i < 72; ++i) RotateAnimation(ed);
    for (std::int32_t i = 1; i <= 3; ++i) {
        EXPECT_NEAR(nodeAt(ed, i).X, nodeAt(barAndBall(), i).X, 60);
        EXPECT_NEAR(nodeAt(ed, i).Y, nodeAt(barAndBall(), i).Y, 60);
    }
}

TEST(Transforms, TurnsClockwiseByFiveDegrees) {
    Editor ed;
    addNode(ed, -1000000, 0);
    addNode(ed, 1000000, 0);
    RotateAnimation(ed);
    EXPECT_EQ(place(ed, 2), std::pair(996195, 87155));
}

TEST(Transforms, ExtremePlacesSaturate) {
    constexpr std::int32_t big = std::numeric_limits<std::int32_t>::max();
    for (const Transform transform : {Increase, Decrease, RotateAnimation, CenterAnimation, up, right}) {
        Editor ed = barAndBall();
        nodeAt(ed, 1).X = big;
        nodeAt(ed, 2).Y = -big;
        for (int i = 0; i < 5; ++i) transform(ed);
        EXPECT_TRUE(std::isfinite(linkAt(ed, 1).RestLength));
    }
}

}  // namespace
}  // namespace zentrik
