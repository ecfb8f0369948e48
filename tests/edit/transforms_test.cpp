// Moving, turning and scaling, by their buttons.

#include "desk.h"

#include <gtest/gtest.h>

namespace zentrik {
namespace {

// A bar 1-2, a far node 3, and a free slot 4 on top of node 1.
Desk barAndBall() {
    Desk desk;
    Editor& ed = desk.ed;
    ed.sceneWidth = 10000;
    ed.sceneHeight = 8000;
    scenes::addNodes(ed, {{1000, 1000}, {3000, 1000}, {2000, 7000}, {1000, 1000}});
    nodeAt(ed, 4).Used = false;
    scenes::addLinks(ed, {{1, 2}, {3, 3}});
    appendLink(ed, defaultLink(ed, 1, 44));
    linkAt(ed, 2).RestLength = 5;
    return desk;
}

std::string placesOfAllSlots(Editor ed) {
    nodeAt(ed, 4).Used = true;
    return placesOf(ed);
}

TEST(Transforms, WorkedPlaces) {
    struct {
        const char* key;
        bool object;  // only the bar, else the whole project
        std::string places;
        float length;
    } const cases[] = {
        {"increase", true, "800,1000 3200,1000 2000,7000 1000,1000 ", 2400},
        {"decrease", true, "1200,1000 2800,1000 2000,7000 1000,1000 ", 1600},
        {"increase", false, "800,400 3200,400 2000,7600 800,400 ", 2400},
        {"decrease", false, "1200,1600 2800,1600 2000,6400 1200,1600 ", 1600},
        {"rotate", true, "1004,913 2996,1087 2000,7000 1000,1000 ", 1999.5848F},
        {"rotate", false, "1265,924 3258,1099 1739,6989 1265,924 ", 2000.6684F},
        {"full", true, "4000,4000 6000,4000 2000,7000 1000,1000 ", 2000},
        {"full", false, "4000,1000 6000,1000 5000,7000 4000,1000 ", 2000},
        {"up", true, "1000,750 3000,750 2000,7000 1000,1000 ", 2000},
        {"down", false, "1000,1250 3000,1250 2000,7250 1000,1250 ", 2000},
        {"left", true, "750,1000 2750,1000 2000,7000 1000,1000 ", 2000},
        {"right", false, "1250,1000 3250,1000 2250,7000 1250,1000 ", 2000},
    };
    for (const auto& c : cases) {
        Desk desk = barAndBall();
        Editor& ed = desk.ed;
        ed.marks.mnuApplyChanges = c.object;
        ed.SelectedLink = 1;  // without the mark it does not matter
        desk.press(c.key);
        EXPECT_EQ(placesOfAllSlots(ed), c.places);
        EXPECT_FLOAT_EQ(linkAt(ed, 1).RestLength, c.length) << c.places;
        EXPECT_FLOAT_EQ(linkAt(ed, 1).CurrentLength, c.length) << c.places;
        const bool reshapes = c.length != 2000;
        EXPECT_EQ(linkAt(ed, 2).RestLength, reshapes && !c.object ? 0 : 5) << c.places;
        EXPECT_EQ(ed.SelectedNode, c.object ? 1 : none);
    }
}

TEST(Transforms, TheBoxStartsFromTheScene) {
    Desk desk = barAndBall();
    Editor& ed = desk.ed;
    ClearAnimation(ed);
    scenes::addNode(ed, 12000, 2000);  // right of the scene: the box begins at its edge
    desk.press("increase");
    EXPECT_EQ(placesOf(ed), "12200,2000 ");
    nodeAt(ed, 1).X = 2000;
    ed.buttons.snap = true;
    ed.GridSize = 300;
    desk.press("full");
    EXPECT_EQ(placesOf(ed), "5100,3900 ");
}

}  // namespace
}  // namespace zentrik
