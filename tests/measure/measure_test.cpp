// Quantities of a model, by numbers that can be worked out by hand.

#include "measure/run_measures.h"
#include "measure/run_table.h"
#include "model/extent.h"
#include "model/store.h"
#include "scenes/scenes.h"
#include "sim/contacts/contacts.h"

#include <gtest/gtest.h>

namespace zentrik {
namespace {

// Two nodes of mass 1 and 3 on a spring of 300 twips, stretched by 100, and a locked one far away.
Editor twoOnASpring() {
    Editor ed = scenes::fullScreen();
    scenes::addNodes(ed, {{1000, 2000}, {1400, 2000}, {5000, 0}});
    nodeAt(ed, 1).Mass = 1, nodeAt(ed, 2).Mass = 3, nodeAt(ed, 3).Mass = 0;
    nodeAt(ed, 3).Locked = true, nodeAt(ed, 3).Vx = 99;
    linkAt(ed, scenes::addLink(ed, 1, 2, 2)).RestLength = 300;
    nodeAt(ed, 2).Vx = 3, nodeAt(ed, 2).Vy = -4;
    return ed;
}

TEST(Measure, GivesTheQuantitiesOfAModel) {
    Editor ed = twoOnASpring();
    EXPECT_EQ(centreOfMass(ed).x, 1300);
    EXPECT_EQ(centreOfMass(ed).y, 2000);
    EXPECT_EQ(kineticEnergy(ed), 0.5 * 3 * 25);
    EXPECT_EQ(springEnergy(ed), 0.5 * 200 * 100 * 100);
    ed.Gravity = 0.5F;
    EXPECT_EQ(gravityEnergy(ed), 4 * 5000.0 * double(boundsOf(ed).floor - 2000));
    EXPECT_EQ(greatestSpeed(ed), 5);
    EXPECT_EQ(extentOf(ed.Nodes).right, 5000);
    EXPECT_EQ(extentOf(ed.Nodes).top, 0);

    // A quarter turn of an animator that lengthens its link by a third: at rest.
    Link& link = linkAt(ed, 1);
    link.Animator = true, link.Force = 1 / 3.0F;
    ed.buttons.animation = true, ed.DeltaAngle = 1, ed.AnimationTime = 1.5707964F;
    EXPECT_NEAR(springEnergy(ed), 0, 1e-4);
    ed.buttons.animation = false;
    EXPECT_EQ(springEnergy(ed), 1e6);
}

TEST(Measure, ARunIsWatchedStepByStep) {
    Editor ed = twoOnASpring();
    RunWatch watch(ed, true);
    const auto value = [&](std::string_view name) {
        for (const Measure& measure : measures())
            if (measure.name == name) return measure.of(watch, ed);
        return -1.0;
    };
    EXPECT_EQ(value("settled"), 0);
    // Up by 40, down again and to the left by 80, then a step that moves a node by one twip alone.
    nodeAt(ed, 1).Y -= 160, nodeAt(ed, 1).Vy = -12;
    watch.stepped(ed, 0.5F);
    nodeAt(ed, 1).Y += 200, nodeAt(ed, 1).X -= 320, nodeAt(ed, 1).Vy = 0;
    watch.stepped(ed, 0.5F);
    nodeAt(ed, 2).X += 1;
    watch.stepped(ed, 0.5F);
    EXPECT_EQ(value("height"), 40);
    EXPECT_EQ(value("speed"), 12);
    EXPECT_EQ(value("settled"), 1);
    EXPECT_EQ(value("distance"), 79.25);
    EXPECT_EQ(value("x"), 1220.75);
    EXPECT_EQ(value("y"), 2010);
    EXPECT_EQ(value("width"), 5000 - 680);
    EXPECT_EQ(value("tallness"), 2040);
    EXPECT_EQ(value("energy"), value("kinetic") + value("spring") + gravityEnergy(ed));
    EXPECT_EQ(value("steps"), 3);
}

TEST(Measure, ATableHasThePartsAskedForAndEmptyCellsForWhatIsGone) {
    Editor ed = twoOnASpring();
    const auto header = [&] { return tableHeader(selectedColumns(ed)); };
    EXPECT_NE(header().find(",node 3 Vx (twips/time unit),"), std::string::npos);
    ed.SelectedNode = 2;
    EXPECT_EQ(header().substr(0, 36), "step,time (time units),node 2 x (twi");
    EXPECT_EQ(header().find("link"), std::string::npos);
    ed.AnimationTime = 0.25F;
    ed.Gravity = 0;
    std::string row;
    appendTableRow(row, ed, 7, columnsOf({2, 8}, {1, 3}));
    EXPECT_EQ(
        row,
        "7,0.25,1400,2000,3,-4,5,14095,20000,,,,,,,,400,20000,300,,,,1300,2000,37.5,1000000,0,1000037.5\n");
    nodeAt(ed, 2).Used = linkAt(ed, 1).Used = false;
    row.clear();
    appendTableRow(row, ed, 8, columnsOf({2}, {1}));
    EXPECT_EQ(row.substr(0, 23), "8,0.25,,,,,,,,,,,1000,2");
}

}  // namespace
}  // namespace zentrik
