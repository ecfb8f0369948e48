// What stands on the screen after what a person does, pixel by pixel; a fresh paint might show more.

#include "basics/colours.h"
#include "rig.h"
#include "window_rig.h"

#include <QBackingStore>

namespace zentrik {

namespace {

class Seen : public Window {
protected:
    QImage screenOf(const char* name) {
        const QWidget* widget = find(name);
        // A grab of the offscreen screen knows no scale.
        const auto* whole = dynamic_cast<QImage*>(widget->backingStore()->paintDevice());
        if (whole == nullptr) return {};
        const QRectF part(widget->mapTo(widget->window(), QPoint()), widget->size());
        const double ratio = widget->devicePixelRatio();
        QImage image = whole->copy(QRectF(part.topLeft() * ratio, part.size() * ratio).toRect());
        image.setDevicePixelRatio(ratio);
        return image;
    }
    QColor colourAt(const char* name, QPoint at) {
        const QImage image = screenOf(name);
        return image.pixelColor((QPointF(at) * image.devicePixelRatio()).toPoint());
    }
    bool shows(const char* name, QPoint at, QColor colour) {
        return await([&] { return colourAt(name, at) == colour; });
    }
    bool isWhite(const char* name) {
        const QImage image = screenOf(name).convertToFormat(QImage::Format_RGB32);
        const auto* first = reinterpret_cast<const QRgb*>(image.constBits());
        return std::all_of(first, first + image.width() * image.height(),
                           [](QRgb pixel) { return (pixel | 0xFF000000) == 0xFFFFFFFF; });
    }
    QPoint discAt(double degrees) {
        const double width = find("picPhase")->width();
        return {static_cast<int>(width * (0.1 + 0.8 * degrees / 360)) + 2, 20};  // beside the grid's line
    }
};

TEST_F(Seen, TheSceneShowsNodesUntilTheyGo) {
    const QPoint at(100, 100), inNode(98, 100), onBand(205, 205), elsewhere(300, 300);
    press("grid");
    ASSERT_TRUE(await([&] { return !isWhite("picS"); }));
    click(elsewhere, Qt::RightButton);
    ASSERT_TRUE(await([&] { return isWhite("picS"); })) << "blank until the next redraw";
    click(at);
    moveTo(elsewhere);
    ASSERT_TRUE(shows("picS", inNode, Qt::red)) << "selected";
    ASSERT_TRUE(shows("picS", onBand, Qt::black));
    click(elsewhere, Qt::RightButton);
    click(elsewhere, Qt::RightButton);
    ASSERT_TRUE(shows("picS", inNode, colourOf(ed().NodeColor)));
    ASSERT_TRUE(shows("picS", onBand, Qt::white));
    moveTo(at);
    ASSERT_TRUE(shows("picS", inNode, Qt::white)) << "pointed at";
    click(at);
    press("delete");
    moveTo(elsewhere);
    ASSERT_TRUE(shows("picS", at + QPoint(4, 0), Qt::white)) << "no outline";
}

TEST_F(Seen, GesturesReachTheEdgesOfTheSceneAndBeyond) {
    const QPoint last = find("picS")->rect().bottomRight();
    click({100, 100});
    click(last);
    EXPECT_EQ(placesOf(ed()),
              "1500,1500 " + std::to_string(last.x() * 15) + "," + std::to_string(last.y() * 15) + " ");
    moveTo({0, 100});
    EXPECT_TRUE(ed().rubberBand) << "the scene's own edge";
    drag({100, 100}, {-20, 50});
    EXPECT_EQ(ed().Nodes[1].X, -300);
    EXPECT_EQ(ed().Nodes[1].Y, 750);
    EXPECT_FALSE(ed().rubberBand) << "outside";
    EXPECT_FALSE(ed().MouseIsDown);
    drag(last, last + QPoint(40, 30));
    EXPECT_EQ(ed().Nodes[2].X, (last.x() + 40) * 15);
}

TEST_F(Seen, DiscsFollowTheirAnglesAndThePointer) {
    click({100, 100});
    click({200, 100});
    click({300, 100});
    click({400, 400}, Qt::RightButton);
    choose("mnuDisplayAngleManager");
    doubleClick({150, 100});  // the first link's middle
    ASSERT_TRUE(ed().Links[1].Animator);
    for (const char* angle : {"112.5", "270"}) {
        answerNext(angle, Qt::Key_Return);
        pressProperty("angle");
        ASSERT_TRUE(shows("picPhase", discAt(QString(angle).toDouble()), Qt::blue)) << angle;
    }
    EXPECT_NE(colourAt("picPhase", discAt(112.5)), QColor(Qt::blue));
    const auto stripClick = [&](QPoint at, Qt::MouseButton mouseButton = Qt::LeftButton) {
        QTest::mouseClick(find("picPhase"), mouseButton, {}, at);
    };
    click({250, 100});
    EXPECT_EQ(ed().SelectedLink, 2);
    EXPECT_EQ(ed().SelectedAnimatorLink, 1) << "a link that is no animator leaves the disc marked";
    stripClick({600, 60});  // beside the disc
    EXPECT_EQ(ed().SelectedAnimatorLink, 2);
    ASSERT_TRUE(shows("picPhase", discAt(270), colourOf(ed().NodeColor)));
    stripClick(discAt(270));
    EXPECT_EQ(ed().SelectedLink, 1);
    QTest::mousePress(find("picPhase"), Qt::LeftButton, {}, discAt(270));
    QTest::mouseMove(find("picPhase"), discAt(112.5));
    QTest::mouseRelease(find("picPhase"), Qt::LeftButton, {}, discAt(112.5));
    EXPECT_NEAR(ed().Links[1].Angle, 112.5, 1);
    QTest::mouseMove(find("picPhase"), {600, 60});
    ASSERT_TRUE(shows("picPhase", discAt(112.5), Qt::blue)) << "let go";
    stripClick({600, 60}, Qt::RightButton);
    EXPECT_EQ(ed().SelectedAnimatorLink, none);
    ASSERT_TRUE(shows("picPhase", discAt(112.5), colourOf(ed().NodeColor)));
}

TEST_F(Seen, ThePathIsErasedInEveryWay) {
    choose("mnuDisplayPath");
    for (const std::string way : {"a click", "new", "reposition"}) {
        if (UsedNodes(ed()) == 0) click({100, 100});
        runAWhile();
        ASSERT_TRUE(await([&] { return !isWhite("frmPath"); })) << way;
        way == "a click" ? QTest::mouseClick(find("frmPath"), Qt::LeftButton) : press(way.c_str());
        ASSERT_TRUE(await([&] { return isWhite("frmPath"); })) << way;
        EXPECT_EQ(panelText(1), way == "new" ? "Nodes: 0" : "Nodes: 1");
    }
    moveTo({300, 300});
    click({100, 100});
    find("frmPath")->resize(100, 40);
    runAWhile();
    ASSERT_TRUE(await(
        [&] { return screenOf("frmPath").deviceIndependentSize().width() == 100 && isWhite("frmPath"); }));
    find("frmPath")->resize(900, 500);
    ASSERT_TRUE(await(
        [&] { return screenOf("frmPath").deviceIndependentSize().width() == 900 && !isWhite("frmPath"); }));
}

TEST_F(Seen, AFileOfALargerSceneIsLaidOut) {
    choose("mnuDisplayAngleManager");
    window_->resize(1300, 800);
    settle();
    find<QComboBox>("lstSaved")->setEditText("large");
    press("save");
    const QSize large = find("picS")->size();
    window_->resize(1000, 600);
    settle();
    choose("mnuAutoWindowSize");
    press("refresh");
    settle();
    const QSize scene = find("picS")->size();
    EXPECT_NEAR(scene.width(), large.width(), 10);
    EXPECT_NEAR(scene.height(), large.height(), 100);
    EXPECT_NEAR(scene.height(), ed().sceneHeight / 15.0, 1);
    EXPECT_EQ(find("picPhase")->width(), scene.width());
    EXPECT_GE(find("picPhase")->y(), find("picS")->geometry().bottom());
}

TEST_F(Seen, ButtonsWaitForTheirNodeOrLink) {
    const auto enabled = [&] {
        std::string keys;
        for (const char* key : {"gravity", "locked", "mass", "animator", "k", "barrier"})
            if (button("Toolbar2", key)->isEnabled()) keys += std::string(key) + " ";
        return keys + (find<QComboBox>("lstSprites")->isEnabled() ? "sprites" : "");
    };
    EXPECT_EQ(enabled(), "gravity ");
    click({100, 100});
    EXPECT_EQ(enabled(), "gravity locked mass sprites");
    click({200, 100});
    click({400, 400}, Qt::RightButton);
    click({400, 400}, Qt::RightButton);
    EXPECT_EQ(enabled(), "gravity ");
    click({150, 100});
    EXPECT_EQ(enabled(), "gravity animator k barrier ");
}

}  // namespace

}  // namespace zentrik
