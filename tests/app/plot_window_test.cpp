// The plot's window by real events: what it shows of the run, and where a click in it leads.

#include "app/plot/plot_window.h"
#include "basics/units.h"
#include "history/recorded_run.h"
#include "measure/run_table.h"
#include "model/redraw.h"
#include "pictures.h"
#include "scenes/scenes.h"
#include "sim/model_run.h"
#include "sim/step.h"
#include "window_rig.h"

#include <QTreeWidget>

namespace zentrik {
namespace {

class PlotWindowTest : public Window {
protected:
    void SetUp() override {
        Window::SetUp();
        for (const QPoint at : {QPoint(100, 100), QPoint(200, 100), QPoint(150, 200)}) click(at);
        click({300, 300}, Qt::RightButton);
        click({300, 300}, Qt::RightButton);
    }
    PlotWindow& plot() const { return *find<PlotWindow>("PlotWindow"); }
    const RunSeries& series() const { return plot().plot().series; }
    void open() {
        QTest::mouseClick(find("plotButton"), Qt::LeftButton);
        ASSERT_TRUE(await([this] { return plot().isVisible() && !plot().isReading(); }));
        settle();
    }
    void run(int steps) {
        const std::int32_t before = ed().Cycles;
        for (int step = 0; step < steps; ++step) {
            press("single");
            ASSERT_TRUE(await([&] { return ed().Cycles == before + step + 1; }));
        }
    }
    void tick(const char* object, const char* curve) {
        auto* list = find<QTreeWidget>("curves");
        QTreeWidgetItem* item = list->findItems(object, Qt::MatchExactly).value(0);
        ASSERT_NE(item, nullptr) << object;
        item->setExpanded(true);
        for (int i = 0; i < item->childCount(); ++i)
            if (item->child(i)->text(0) == curve) {
                item->child(i)->setCheckState(0, Qt::Checked);
                EXPECT_TRUE(await([this] { return !plot().isReading(); }));
                return;
            }
        FAIL() << curve;
    }
    double dt() const { return static_cast<double>(stepSize(ed())); }
    PlotFrame frame() const {
        const double ratio = plot().devicePixelRatioF();
        return frameOf(plot().plot(), plot().plotSize() * ratio, ratio);
    }
    // The place of a step in the plot, against time.
    QPoint placeOf(std::int64_t step) const {
        const double x = frame().place(series().of(0)[series().spanAt(step)].first);
        return (QPointF(x, frame().body().center().y()) / frame().ratio).toPoint();
    }
    std::vector<std::pair<std::int32_t, std::int32_t>> places() const {
        std::vector<std::pair<std::int32_t, std::int32_t>> all;
        forEachNode(ed(), [&](std::int32_t, const Node& node) { all.emplace_back(node.X, node.Y); });
        return all;
    }
};

// What was run before the window was opened is read afterwards, in a thread; what comes then, step by step.
// Both are what a table of a fresh run says.
TEST_F(PlotWindowTest, ShowsWhatARunsTableSays) {
    Editor fresh = ed();
    run(90);
    open();
    EXPECT_EQ(series().end(), 91) << "the model before its first step, and 90";
    EXPECT_EQ(series().curves().size(), 5U) << "time, and the energies";
    tick("Node 2", "y");
    tick("Link 1", "force");
    run(10);
    ASSERT_EQ(series().end(), 101);
    ASSERT_EQ(series().stride(), 1);
    const auto& curves = plot().curves();
    ASSERT_EQ(curves.size(), 6U);
    for (std::size_t step = 0; step <= 100; ++step) {
        const ModelReading reading(fresh);
        EXPECT_NEAR(series().of(0)[step].first, dt() * static_cast<double>(step), 1e-5);
        for (std::size_t c = 0; c < curves.size(); ++c)
            ASSERT_EQ(series().of(c + 1)[step].first, valueOf(reading, curves[c]))
                << step << nameOf(curves[c]);
        if (step == 0) beginRun(fresh), fresh.InitialVelocityPending = false;
        stepRun(fresh);
    }
}

TEST_F(PlotWindowTest, AClickLeadsToThatMomentAndTheRunGoesOnFromThere) {
    run(80);
    open();
    const auto last = places();
    QTest::mouseClick(find("plot"), Qt::LeftButton, {}, placeOf(30));
    const auto middle = places();
    EXPECT_NE(middle, last);
    EXPECT_EQ(plot().plot().now, 30);
    EXPECT_EQ(panelText(5), "Step 30 of 80");
    QTest::mousePress(find("plot"), Qt::LeftButton, {}, placeOf(40));
    QTest::mouseMove(find("plot"), placeOf(80));
    QTest::mouseRelease(find("plot"), Qt::LeftButton, {}, placeOf(80));
    EXPECT_EQ(places(), last) << "a drag goes on through the run";
    QTest::mouseClick(find("plot"), Qt::LeftButton, {}, placeOf(30));
    EXPECT_EQ(places(), middle);
    run(1);
    EXPECT_EQ(series().end(), 32) << "what came after is another run";
    EXPECT_EQ(plot().plot().now, 31);
    QTest::keyClick(find("plot"), Qt::Key_Left);
    EXPECT_EQ(places(), middle);
    QTest::keyClick(window_.get(), Qt::Key_Backspace, Qt::AltModifier);
    EXPECT_EQ(plot().plot().now, 31) << "undo of going there";
    press("start");
    ASSERT_TRUE(await([this] { return ed().Cycles > 33; }));
    QTest::mouseClick(find("plot"), Qt::LeftButton, {}, placeOf(series().begin()));
    EXPECT_FALSE(ed().Timer1.enabled) << "it stops for that";
    EXPECT_GT(series().begin(), 0) << "a start begins anew";
}

TEST_F(PlotWindowTest, ZoomsByWheelAndDragAndFits) {
    run(80);
    open();
    const auto shown = [this] { return plot().plot().shown; };
    const auto turn = [this](QPoint at, QPoint by, Qt::KeyboardModifiers with) {
        QWheelEvent event(at, find("plot")->mapToGlobal(at), {}, by, Qt::NoButton, with, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(find("plot"), &event);
        settle();
    };
    const Range all = frame().x.range;
    const QPoint middle = placeOf(40);
    turn(middle, {0, 240}, {});
    ASSERT_TRUE(shown());
    EXPECT_NEAR(shown()->to - shown()->from, 0.64 * (all.to - all.from), 1e-4);
    EXPECT_NEAR((placeOf(40) - middle).manhattanLength(), 0, 2) << "what the pointer is at stays there";
    const Range before = *shown();
    turn(placeOf(40), {0, -120}, Qt::ShiftModifier);
    EXPECT_GT(shown()->from, before.from);
    EXPECT_NEAR(shown()->to - shown()->from, before.to - before.from, 1e-9);
    QTest::mouseClick(find("fit"), Qt::LeftButton);
    EXPECT_FALSE(shown());
    settle();
    const auto still = places();
    QTest::mousePress(find("plot"), Qt::RightButton, {}, placeOf(20));
    QTest::mouseMove(find("plot"), placeOf(50));
    QTest::mouseRelease(find("plot"), Qt::RightButton, {}, placeOf(50));
    ASSERT_TRUE(shown());
    EXPECT_NEAR(shown()->from, 20 * dt(), dt());
    EXPECT_NEAR(shown()->to, 50 * dt(), dt());
    EXPECT_EQ(places(), still);
    QTest::mouseDClick(find("plot"), Qt::LeftButton, {}, {200, 100});
    EXPECT_FALSE(shown());
}

TEST_F(PlotWindowTest, OpensByKeyAndMenuAndRemembersItsPlace) {
    QTest::keyClick(window_.get(), Qt::Key_G, Qt::ControlModifier);
    EXPECT_TRUE(plot().isVisible());
    EXPECT_TRUE(find<QToolButton>("plotButton")->isChecked());
    QTest::keyClick(window_.get(), Qt::Key_G, Qt::ControlModifier);
    EXPECT_FALSE(plot().isVisible());
    EXPECT_FALSE(find<QToolButton>("plotButton")->isChecked());

    moveTo({200, 100});
    QTest::mouseClick(find("picS"), Qt::RightButton, Qt::ControlModifier, {200, 100});
    auto* menu = find<QMenu>("plotMenu");
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_EQ(menu->actions()[0]->text(), "&Plot this node");
    menu->actions()[0]->trigger();
    menu->close();
    settle();
    ASSERT_TRUE(plot().isVisible());
    ASSERT_EQ(plot().curves().size(), 6U) << "the energies are there since it was opened first";
    EXPECT_EQ(nameOf(plot().curves()[4]), "node 2 speed");
    EXPECT_EQ(nameOf(plot().curves()[5]), "node 2 height");

    click({150, 100});
    QTest::keyClick(window_.get(), Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(nameOf(plot().curves().back()), "link 1 force");

    plot().setGeometry(120, 140, 700, 333);
    settle();
    restart();
    open();
    EXPECT_EQ(plot().size(), QSize(700, 333));
}

TEST_F(PlotWindowTest, WhatIsRemovedAndBroughtBackLeavesAGap) {
    run(70);
    open();
    tick("Node 3", "x");
    const std::size_t curve = plot().curves().size();
    const QPoint place(nodeAt(ed(), 3).X / twipsPerPixel, nodeAt(ed(), 3).Y / twipsPerPixel);
    click(place);
    doubleClick(place);
    ASSERT_FALSE(nodeAt(ed(), 3).Used);
    run(3);
    EXPECT_EQ(series().end(), 74);
    EXPECT_FALSE(std::isnan(series().of(curve)[70].first));
    EXPECT_TRUE(std::isnan(series().of(curve)[73].first));
    EXPECT_FALSE(find<QTreeWidget>("curves")->findItems("Node 3", Qt::MatchExactly).isEmpty());
    for (int undo = 0; undo < 4 && !nodeAt(ed(), 3).Used; ++undo)
        QTest::keyClick(window_.get(), Qt::Key_Backspace, Qt::AltModifier);
    ASSERT_TRUE(nodeAt(ed(), 3).Used);
    ASSERT_TRUE(await([this] { return !plot().isReading(); }));
    EXPECT_EQ(plot().plot().now, 70);
    QTest::keyClick(window_.get(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(series().size(), 0U) << "nothing was run of an empty scene";
    run(2);
    EXPECT_EQ(series().end(), 3);
}

TEST_F(PlotWindowTest, TakesTenThousandNodes) {
    window_->perform("Change", [](Editor& ed, Host&) {
        const Editor model = scenes::latticeOf(10000);
        ed.Nodes = model.Nodes, ed.Links = model.Links;
        redrawScene(ed);
    });
    run(70);
    open();
    EXPECT_EQ(find<QTreeWidget>("curves")->topLevelItemCount(), 1 + UsedNodes(ed()) + UsedLinks(ed()));
    tick("Node 9999", "force");
    run(2);
    EXPECT_EQ(series().end(), 73);
    EXPECT_EQ(series().of(5).back().first,
              valueOf(ModelReading(ed()), curveNamed("node 9999.force").value()));
}

// Nobody waits for what is read: neither who chooses other curves meanwhile, nor who closes the window.
TEST_F(PlotWindowTest, OtherCurvesDoNotWaitForThoseBefore) {
    window_->perform("Change", [](Editor& ed, Host&) {
        const Editor model = scenes::latticeOf(2000);
        ed.Nodes = model.Nodes, ed.Links = model.Links;
        for (std::size_t i = 1; i <= 100; ++i) ed.Nodes[i].Gravity = 1;  // milliseconds a step
    });
    run(80);
    QTest::mouseClick(find("plotButton"), Qt::LeftButton);
    auto* list = find<QTreeWidget>("curves");
    QTreeWidgetItem* whole = list->topLevelItem(0);
    for (int i : {0, 1}) whole->child(i)->setCheckState(0, Qt::Checked);
    QApplication::processEvents();
    EXPECT_TRUE(plot().isReading()) << "the end of the reading before was taken for that of this one";
    QTest::mouseClick(find("plotButton"), Qt::LeftButton);
    EXPECT_FALSE(plot().isVisible());
    EXPECT_FALSE(plot().isReading());
}

// Whatever was drawn step by step, and put together since.
TEST(PlotView, LooksAlikeHoweverItGrew) {
    RunSeries series({curveNamed("node 1.x").value()}, 0, 64);
    PlotView grown(series, nullptr), fresh(series, nullptr);
    for (PlotView* view : {&grown, &fresh}) view->resize(500, 260);
    Editor ed = scenes::fullScreen();
    scenes::addNodes(ed, {{0, 0}});
    for (int step = 0; step < 590; ++step) {
        nodeAt(ed, 1).X = step * (step % 50 == 0 ? 7 : 5);
        series.add(ed);
        grown.showMore(step, false);
        if (step % 3 == 0 || step > 580) grown.grab();
    }
    fresh.showAfresh(589);
    const PictureDifference by = softDifference(grown.grab().toImage(), fresh.grab().toImage());
    EXPECT_LE(by.perMille, 0.3);
}

}  // namespace
}  // namespace zentrik
