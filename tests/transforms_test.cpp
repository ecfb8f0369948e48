#include "edit/transforms.h"

#include "rig.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

namespace zentrik {
namespace {

using Transform = void (*)(Editor&);

void up(Editor& ed) { moveProject(ed, 0, -1); }
void down(Editor& ed) { moveProject(ed, 0, 1); }
void left(Editor& ed) { moveProject(ed, -1, 0); }
void right(Editor& ed) { moveProject(ed, 1, 0); }

Editor emptyScene() {
    Editor ed;
    ed.sceneWidth = 10000;
    ed.sceneHeight = 8000;
    return ed;
}

// A bar 1-2, a far node 3, and a free slot 4 on top of node 1.
Editor barAndBall() {
    Editor ed = emptyScene();
    scenes::addNodes(ed, {{1000, 1000}, {3000, 1000}, {2000, 7000}, {1000, 1000}});
    nodeAt(ed, 4).Used = false;
    scenes::addLinks(ed, {{1, 2}, {3, 3}});
    appendLink(ed, defaultLink(ed, 1, 44));
    linkAt(ed, 2).RestLength = 5;
    return ed;
}

std::string placesOfAllSlots(Editor ed) {
    nodeAt(ed, 4).Used = true;
    return placesOf(ed);
}

TEST(Transforms, WorkedPlaces) {
    struct {
        Transform transform;
        bool object;  // only the bar, else the whole project
        std::string places;
        float length;
    } const cases[] = {
        {Increase, true, "800,1000 3200,1000 2000,7000 1000,1000 ", 2400},
        {Decrease, true, "1200,1000 2800,1000 2000,7000 1000,1000 ", 1600},
        {Increase, false, "800,400 3200,400 2000,7600 800,400 ", 2400},
        {Decrease, false, "1200,1600 2800,1600 2000,6400 1200,1600 ", 1600},
        {RotateAnimation, true, "1004,913 2996,1087 2000,7000 1000,1000 ", 1999.5848F},
        {CenterAnimation, true, "4000,4000 6000,4000 2000,7000 1000,1000 ", 2000},
        {CenterAnimation, false, "4000,1000 6000,1000 5000,7000 4000,1000 ", 2000},
        {up, true, "1000,750 3000,750 2000,7000 1000,1000 ", 2000},
        {down, false, "1000,1250 3000,1250 2000,7250 1000,1250 ", 2000},
        {left, true, "750,1000 2750,1000 2000,7000 1000,1000 ", 2000},
        {right, false, "1250,1000 3250,1000 2250,7000 1250,1000 ", 2000},
    };
    for (const auto& c : cases) {
        Editor ed = barAndBall();
        ed.marks.mnuApplyChanges = c.object;
        ed.SelectedLink = 1;  // without the mark it does not matter
        c.transform(ed);
        EXPECT_EQ(placesOfAllSlots(ed), c.places);
        EXPECT_FLOAT_EQ(linkAt(ed, 1).RestLength, c.length) << c.places;
        EXPECT_FLOAT_EQ(linkAt(ed, 1).CurrentLength, c.length) << c.places;
        const bool reshapes = c.length != 2000;
        EXPECT_EQ(linkAt(ed, 2).RestLength, reshapes && !c.object ? 0 : 5) << c.places;
        EXPECT_EQ(ed.SelectedNode, c.object ? 1 : none);
    }
}

TEST(Transforms, WithNothingSelectedTheyTakeTheProjectButMovesTakeNothing) {
    for (const std::int32_t stale : {none, 99})
        for (const Transform transform : {Increase, Decrease, RotateAnimation, CenterAnimation, up}) {
            Editor ed = barAndBall(), whole = barAndBall();
            ed.marks.mnuApplyChanges = true;
            ed.SelectedNode = ed.SelectedLink = stale;
            transform(ed);
            if (transform != up) transform(whole);
            EXPECT_EQ(placesOfAllSlots(ed), placesOfAllSlots(whole));
        }
}

TEST(Transforms, TheBoxStartsFromTheScene) {
    Editor ed = emptyScene();
    scenes::addNode(ed, 12000, 2000);  // right of the scene: the box begins at its edge
    Increase(ed);
    EXPECT_EQ(placesOf(ed), "12200,2000 ");
    nodeAt(ed, 1).X = 2000;
    ed.buttons.snap = true;
    ed.GridSize = 300;
    CenterAnimation(ed);
    EXPECT_EQ(placesOf(ed), "5100,3900 ");
}

}  // namespace
}  // namespace zentrik
