// The real window on desktops of other fonts, colours, styles and screens.

#include "app/boxes/placement.h"
#include "window_rig.h"

#include <QMenuBar>
#include <QScreen>

namespace zentrik {

namespace {

// Sets the desktop's font for a test.
struct DesktopFont {
    const QFont before = QApplication::font();
    void set(const char* family, double points) const {
        QFont font{QString(family)};
        font.setPointSizeF(points);
        QApplication::setFont(font);
    }
    ~DesktopFont() { QApplication::setFont(before); }
};

TEST_F(Window, StatusPanelsStandSideBySide) {
    for (int number = 1; number <= 5; ++number) {
        const auto* panel = find<QLabel>(qPrintable(QString("Panel%1").arg(number)));
        EXPECT_TRUE(panel->isVisible() && panel->width() > 60 && panel->height() > 10) << number;
        if (number == 1) continue;
        EXPECT_GT(panel->x(),
                  find<QLabel>(qPrintable(QString("Panel%1").arg(number - 1)))->geometry().right());
    }
}

TEST_F(Window, BarsTakeTheRoomTheirFontNeeds) {
    const DesktopFont desktop;
    window_->resize(window_->minimumSize());
    const int designed = find("picS")->height();
    for (const char* family : {"DejaVu Sans", "Nimbus Sans"})
        for (const double points : {6.0, 9.0, 11.0, 13.75, 14.0, 18.0, 24.0}) {
            SCOPED_TRACE(testing::Message() << family << " " << points);
            desktop.set(family, points);
            settle();
            window_->perform("Change", [](Editor& ed, Host&) {
                ed.panels[0] = "Nodes: 123456";
                ed.panels[3] = "Time:  12345.678";
                ed.panels[4] = std::string(400, 'm');
            });
            settle();
            int shown = 0;
            for (const QAction* menu : window_->menuBar()->actions()) {
                const QRect place = window_->menuBar()->actionGeometry(const_cast<QAction*>(menu));
                shown += !place.isEmpty() && window_->menuBar()->rect().contains(place);
            }
            EXPECT_GE(shown, points <= 14 ? 11 : 6);
            for (const char* name : {"Panel1", "Panel2", "Panel3", "Panel4"}) {
                const auto* panel = find<QLabel>(name);
                EXPECT_GE(panel->contentsRect().width(),
                          panel->fontMetrics().horizontalAdvance(panel->text()));
                EXPECT_GE(panel->height(), panel->fontMetrics().height());
                EXPECT_NE(panel->toolTip(), panel->text()) << "not cut";
            }
            EXPECT_EQ(find("Panel5")->toolTip(), panelText(5));
            const QWidget *scene = find("picS"), *status = find("StatusBar1");
            EXPECT_LE(scene->mapTo(window_.get(), QPoint(0, scene->height())).y(), status->y());
            EXPECT_GE(scene->height(), designed - (points <= 9 ? 0 : 60));
        }
}

TEST_F(Window, ThePropertyBarStandsUnderItsReadOut) {
    for (const int width : {960, 1190, 1210, 1590}) {
        window_->resize(width, 700);
        settle();
        expectEveryButtonVisible();
        const std::pair<const char*, int> firsts[] = {{"gravity", 100}, {"mass", 7550}, {"k", 10800}};
        for (const auto& [key, twips] : firsts)
            EXPECT_NEAR(button("Toolbar2", key)->mapTo(window_.get(), QPoint()).x(),
                        find("picS")->mapTo(window_.get(), QPoint()).x() + twips / 15, 1)
                << key << " at " << width;
    }
}

TEST_F(Window, FollowsTheDesktopToDarkAndToOtherStyles) {
    const QPalette light = QApplication::palette();
    const QColor ink = Qt::white;
    QPalette dark(QColor(50, 50, 50), QColor(30, 30, 30));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(role, ink);
    QApplication::setPalette(dark);
    settle();
    EXPECT_EQ(find<QComboBox>("lstSprites")->palette().color(QPalette::Active, QPalette::ButtonText), ink);
    EXPECT_EQ(find("Panel5")->palette().color(QPalette::WindowText), ink);
    const QColor paper(Qt::white);  // the scene's
    EXPECT_EQ(find<QComboBox>("lstSaved")->lineEdit()->palette().color(QPalette::Base), paper);
    EXPECT_EQ(find<QComboBox>("lstSaved")->lineEdit()->palette().color(QPalette::Text), QColor(Qt::black));
    const QImage icon = button("Toolbar1", "new")->icon().pixmap(24).toImage();
    int bright = 0;
    for (int x = 0; x < icon.width(); ++x)
        for (int y = 0; y < icon.height(); ++y) bright += icon.pixelColor(x, y) == ink;
    EXPECT_GT(bright, 0);
    QApplication::setPalette(light);

    for (const char* style : {"Windows", "Fusion"}) {
        QApplication::setStyle(style);
        window_->resize(960, 400);
        settle();
        expectEveryButtonVisible();
        EXPECT_NEAR(button("Toolbar2", "k")->x(), (60 + 10800) / 15, 1) << style;
    }
}

TEST_F(Window, TheStartButtonShowsWhatItDoes) {
    const auto* start = button("Toolbar1", "start");
    const auto drawn = [&](QIcon::State state) {
        return start->icon().pixmap(QSize(24, 24), QIcon::Normal, state).toImage();
    };
    EXPECT_NE(drawn(QIcon::On), drawn(QIcon::Off));
    const auto* animator = button("Toolbar2", "animator");
    EXPECT_EQ(animator->icon().pixmap(QSize(24, 24), QIcon::Normal, QIcon::On).toImage(), drawn(QIcon::Off));
}

TEST_F(Window, ItsSizeFollowsTheScreenItIsOn) {
    EXPECT_EQ(window_->maximumSize(), QSize(1600, 1000));
    window_->move(QGuiApplication::screens()[1]->geometry().topLeft() + QPoint(100, 50));
    EXPECT_TRUE(await([&] { return window_->maximumSize() == QSize(2400, 1400); }));
    EXPECT_EQ(boundedSize({16000, 16000}, {960, 334}, {800, 300}), QSize(960, 334));

    // A project from a larger scene.
    window_->perform("Change", [](Editor&, Host& host) { host.resizeWindow(90000, 90000); });
    EXPECT_TRUE(window_->screen()->availableGeometry().contains(window_->frameGeometry()));
    EXPECT_EQ(window_->frameGeometry().size(), QSize(2400, 1400));
    window_->resize(1000, 600);
    window_->showMaximized();
    settle();
    const QSize filled = window_->size();
    window_->perform("Change", [](Editor&, Host& host) { host.resizeWindow(19500, -1); });
    EXPECT_TRUE(window_->isMaximized());
    EXPECT_EQ(window_->size(), filled);
    ASSERT_TRUE(window_->close());
    window_ = makeWindow();
    window_->show();
    EXPECT_TRUE(window_->isMaximized()) << "remembered";
    window_->showNormal();
    restart();
    EXPECT_FALSE(window_->isMaximized());
}

}  // namespace

}  // namespace zentrik
