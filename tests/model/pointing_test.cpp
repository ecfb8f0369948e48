// What a pointer that drags nothing has painted: what it changed, and no more.

#include "model/pointing.h"

#include "app/views/views.h"
#include "display/scene.h"
#include "edit/mouse.h"
#include "edit/phase_mouse.h"
#include "model/redraw.h"
#include "scenes/scenes.h"
#include "window_rig.h"

#include <gtest/gtest.h>

#include <QImage>

namespace zentrik {

namespace {

// Two nodes joined by an animated link; everything shown.
Editor shown() {
    Editor ed = scenes::fullScreen();
    scenes::addNodes(ed, {{1500, 1500}, {4500, 1500}});
    linkAt(ed, scenes::addLink(ed, 1, 2)).Animator = true;
    ed.phaseWidth = 12000;
    ed.marks.mnuDisplayAngleManager = true;
    redrawScene(ed);
    DrawPhaseManager(ed, 0);
    ed.sceneStale = ed.phaseStale = false;
    return ed;
}

// What is stale after a move over the scene or the strip.
template <class Move>
std::string staleAfter(Editor& ed, Move move, bool sceneIsCurrent = true, bool phaseIsCurrent = true) {
    const Pointing pointing(ed);
    move(ed);
    pointing.end(ed, sceneIsCurrent, phaseIsCurrent);
    std::string stale;
    if (std::exchange(ed.sceneStale, false)) stale += "scene ";
    if (std::exchange(ed.marksStale, false)) stale += "marks ";
    if (std::exchange(ed.phaseStale, false)) stale += "strip ";
    return stale;
}
auto overScene(float x, float y) {
    return [x, y](Editor& ed) { picS_MouseMove(ed, 0, x, y); };
}
auto overStrip(float x, float y) {
    return [x, y](Editor& ed) { picPhase_MouseMove(ed, x, y); };
}

TEST(Pointing, MakesStaleWhatItChanges) {
    Editor ed = shown();
    EXPECT_EQ(staleAfter(ed, overScene(9000, 9000)), "");
    EXPECT_EQ(staleAfter(ed, overScene(1500, 1500)), "marks ") << "a node";
    EXPECT_EQ(staleAfter(ed, overScene(1501, 1500)), "");
    EXPECT_EQ(staleAfter(ed, overScene(3000, 1500)), "marks ") << "a link";
    EXPECT_EQ(staleAfter(ed, overScene(9000, 9000)), "marks ");
    EXPECT_EQ(staleAfter(ed, overStrip(1200, 300)), "strip ") << "the link's disc";
    EXPECT_EQ(staleAfter(ed, overStrip(1201, 300)), "");
    EXPECT_EQ(staleAfter(ed, overStrip(9000, 300)), "strip ");
    ed.SelectedNode = 1;
    ed.DrawMode = true;
    EXPECT_EQ(staleAfter(ed, overScene(9000, 9000)), "marks ") << "the rubber band";
    EXPECT_EQ(staleAfter(ed, overScene(9000, 9001)), "marks ");
    EXPECT_EQ(staleAfter(ed, overStrip(9000, 300)), "marks ") << "the rubber band goes";
    ed.instructionsShown = true;
    EXPECT_EQ(staleAfter(ed, overScene(9000, 9001)), "scene ") << "the instructions go";
    ed.sceneBlank = true;
    EXPECT_EQ(staleAfter(ed, overScene(9000, 9001)), "scene ");
    ed.phaseShift = 1;
    EXPECT_EQ(staleAfter(ed, overScene(9000, 9001)), "strip ") << "the curve stands for time 0 again";
    EXPECT_EQ(staleAfter(ed, overScene(9000, 9001), false, true), "scene ") << "not current";
    EXPECT_EQ(staleAfter(ed, overScene(9000, 9001), true, false), "strip ");
}

class PointingWindow : public Window {
protected:
    QImage view() { return find("picS")->grab().toImage().convertToFormat(QImage::Format_RGB32); }
    // Painted afresh from the record. Kept layers may round differently.
    int unlikeRecord() {
        const QImage seen = view();
        QImage fresh(seen.size(), QImage::Format_RGB32);
        fresh.setDevicePixelRatio(seen.devicePixelRatio());
        QPainter painter(&fresh);
        drawScene(painter, ed(), {});
        painter.end();
        int unlike = 0;
        for (qsizetype byte = 0; byte < fresh.sizeInBytes(); ++byte)
            unlike += std::abs(fresh.constBits()[byte] - seen.constBits()[byte]) > 2;
        return unlike;
    }
};

TEST_F(PointingWindow, TheSceneShowsTheRecordWhateverIsKeptOfIt) {
    window_->perform("Change", [](Editor& ed, Host&) {
        scenes::addNodes(ed, {{1500, 1500}, {4500, 1500}});
        scenes::addLink(ed, 1, 2);
        ed.buttons.numbers = ed.marks.mnuDisplayTitle = true;
        ed.ProjectTitle = "Title";
        redrawScene(ed);
    });
    EXPECT_EQ(unlikeRecord(), 0);
    const QImage without = view();
    for (const QPoint at : {QPoint(100, 100), QPoint(200, 100), QPoint(500, 300)}) {
        moveTo(at);
        EXPECT_EQ(unlikeRecord(), 0) << at.x();
        EXPECT_EQ(view() == without, at.x() == 500) << "a mark where there is something";
    }
    // Nobody says that this changed the scene, but the next move shows it.
    window_->perform("Change", [](Editor& ed, Host&) { ed.Nodes[1].color = 0xFF00FF; });
    moveTo(QPoint(501, 300));
    EXPECT_EQ(unlikeRecord(), 0);
    EXPECT_NE(view(), without);
    window_->resize(900, 600);
    EXPECT_EQ(unlikeRecord(), 0);
    press("start");
    EXPECT_EQ(unlikeRecord(), 0) << "moving";
    press("start");
    drag(QPoint(300, 100), QPoint(320, 140));
    EXPECT_EQ(unlikeRecord(), 0) << "dragged";
}

// A widget whose paints take long.
class Slow : public QWidget {
public:
    PaintPacer pacer{*this};
    std::vector<qint64> starts;  // milliseconds
    QElapsedTimer clock;
    int taking = 30;  // milliseconds

protected:
    void paintEvent(QPaintEvent*) override {
        starts.push_back(clock.elapsed());
        pacer.measure([this] { QTest::qSleep(taking); });
    }
};

TEST(PaintPacer, LeavesAsMuchTimeAsAPaintTakes) {
    Slow slow;
    slow.clock.start();
    slow.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&slow));
    slow.starts.clear();
    const auto painted = [&](std::size_t count) {
        slow.pacer.request();
        return slow.starts.size() >= count;
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return painted(6); }, 60000));
    for (std::size_t n = 2; n < slow.starts.size(); ++n)
        EXPECT_GE(slow.starts[n] - slow.starts[n - 1], 60) << "between two starts of 30 ms";
    // Where that would be too few pictures a second, it leaves less.
    slow.taking = 90;
    slow.starts.clear();
    const auto twiceSoon = [&] {
        const std::size_t count = slow.starts.size();
        return painted(3) && slow.starts[count - 1] - slow.starts[count - 2] < 180;
    };
    EXPECT_TRUE(QTest::qWaitFor(twiceSoon, 60000));
}

}  // namespace

}  // namespace zentrik
