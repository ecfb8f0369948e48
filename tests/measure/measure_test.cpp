// Quantities of a model, by numbers that can be worked out by hand.

#include "measure/run_measures.h"
#include "measure/run_series.h"
#include "measure/run_table.h"
#include "model/extent.h"
#include "model/store.h"
#include "scenes/scenes.h"
#include "scenes/visit.h"
#include "sim/contacts/contacts.h"

#include <gtest/gtest.h>
#include <numbers>

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

TEST(Measure, ACentreWithoutMassIsThatOfThePlaces) {
    Editor ed = twoOnASpring();
    nodeAt(ed, 1).Mass = nodeAt(ed, 2).Mass = 0;
    EXPECT_NEAR(centreOfMass(ed).x, 7400 / 3.0, 1e-9);
    EXPECT_NEAR(centreOfMass(ed).y, 4000 / 3.0, 1e-9);
}

TEST(Curves, AreFoundByTheirNames) {
    for (const Quantity& quantity : quantities()) {
        const Curve curve{&quantity, quantity.of == Of::whole ? none : 3};
        EXPECT_EQ(curveNamed(nameOf(curve)), curve) << quantity.name;
    }
    EXPECT_EQ(nameOf(curveNamed("NODE 3.vX").value()), "node 3 Vx");
    for (const char* wrong :
         {"", "node 3", "node 3.", "node x.y", "node 3.length", "link 1.Vx", "node 3y", "nodes"})
        EXPECT_FALSE(curveNamed(wrong)) << wrong;
}

// A node in balance is pulled by nothing: its spring is stretched by its weight.
TEST(Curves, ANodesForceIsThatOfItsLinksAndItsWeight) {
    Editor ed = scenes::fullScreen();
    scenes::addNodes(ed, {{1000, 1000}, {1000, 2000}});
    ed.Gravity = 0.5F, nodeAt(ed, 2).Mass = 4;
    linkAt(ed, scenes::addLink(ed, 1, 2, 2)).RestLength = 900;
    const auto force = [&] { return valueOf(ModelReading(ed), curveNamed("node 2.force").value()); };
    EXPECT_EQ(force(), 0);
    ed.Gravity = 0;
    EXPECT_EQ(force(), 20000);
    nodeAt(ed, 2).Y = 1900, ed.Gravity = -0.25F;
    EXPECT_EQ(force(), 10000);
}

// Of the samples, by theory: the manual has these figures.
TEST(Curves, MeasureAPeriodAndABounce) {
    const auto runOf = [](const char* sample, std::vector<Curve> curves, int steps) {
        Editor ed = scenes::openSample(ZENTRIK_SOURCE_DIR, sample, scenes::smallestScene);
        RunSeries series(std::move(curves));
        series.add(ed);
        scenes::start(ed);
        for (int step = 0; step < steps; ++step) scenes::tickSample(ed), series.add(ed);
        return series;
    };
    const std::vector<Curve> heights{*curveNamed("node 1.height"), *curveNamed("node 3.height"),
                                     *curveNamed("node 5.height")};
    const RunSeries swings = runOf("oscillators", heights, 2000);
    for (const int times : {1, 2, 3}) {
        const auto curve = static_cast<std::size_t>(times);
        const double period = figuresOf(swings, curve, 0, swings.size()).period;
        EXPECT_NEAR(period, 2 * std::numbers::pi * times / 10, 0.003 * times);
        EXPECT_EQ(figuresOf(swings, 1, 0, 50).period, 0) << "too short a part";
    }
    const RunSeries bounces = runOf("bouncer", {heights[0]}, 8000);
    const auto& heightsNow = bounces.of(1);
    std::vector<double> tops{heightsNow.front().first};
    for (std::size_t i = 1; i + 1 < heightsNow.size(); ++i)
        if (heightsNow[i].first > heightsNow[i - 1].first && heightsNow[i].first >= heightsNow[i + 1].first)
            if (heightsNow[i].first > 500) tops.push_back(heightsNow[i].first);
    ASSERT_GT(tops.size(), 3U);
    for (std::size_t i = 1; i < 4; ++i) EXPECT_NEAR(tops[i] / tops[i - 1], 0.81, 0.01);
    EXPECT_EQ(figuresOf(bounces, 1, 0, bounces.size()).period, 0) << "each bounce is shorter";
}

// No peak is lost however long the run, and what is cut off can be read again.
TEST(Curves, AreKeptInBoundedMemory) {
    Editor ed = twoOnASpring();
    const std::vector<Curve> curves{*curveNamed("node 1.x")};
    RunSeries thin(curves, 0, 64), whole(curves, 0, 1 << 20);
    for (int step = 0; step < 10000; ++step) {
        nodeAt(ed, 1).X = step == 7777 ? 90000 : step % 100;
        thin.add(ed), whole.add(ed);
    }
    EXPECT_EQ(thin.end(), 10000);
    EXPECT_LE(thin.size(), 64U);
    EXPECT_GT(thin.size(), 32U);
    const auto figures = [](const RunSeries& series) {
        const CurveFigures all = figuresOf(series, 1, 0, series.size());
        return std::tuple(all.least, all.greatest, all.mean, series.all(1).greatest, series.all(1).sum);
    };
    EXPECT_EQ(figures(thin), figures(whole));
    EXPECT_EQ(thin.of(1)[thin.spanAt(7777)].greatest, 90000);
    EXPECT_LE(thin.stepOf(thin.spanAt(7777)), 7777);
    thin.cut(7770);
    EXPECT_LE(thin.end(), 7770);
    EXPECT_GT(thin.end(), 7770 - thin.stride());
    EXPECT_EQ(thin.all(1).greatest, 99);
    EXPECT_NEAR(thin.of(0).back().greatest, static_cast<double>(thin.end() - 1) * 0.02, 1e-3);
}

}  // namespace
}  // namespace zentrik
