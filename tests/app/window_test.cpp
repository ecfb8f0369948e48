// The real window, driven by real mouse and key events, offscreen.

#include "window_rig.h"

#include <QDesktopServices>
#include <QMenuBar>
#include <QScrollBar>
#include <QTcpServer>
#include <QTcpSocket>

namespace zentrik {

namespace {

TEST_F(Window, SaysWhichSpriteIsNoPicture) {
    putFile(folder_.path / "sprites" / "notes.txt", "no picture");
    window_ = makeWindow();
    show();
    EXPECT_EQ(panelText(5), "No usable picture: notes.txt");
}

TEST_F(Window, NoButtonIsHiddenAtAnySize) {
    window_ = makeWindow();
    window_->resize(10, 10);
    show();
    EXPECT_EQ(window_->width() * 15, 14400);
    EXPECT_GE(window_->height() * 15, 5000);
    expectEveryButtonVisible();
    window_->setMaximumSize(1300, 700);  // the test's screen may be smaller
    window_->resize(1300, 700);
    settle();
    expectEveryButtonVisible();
}

TEST_F(Window, BuildsACreatureFromNothing) {
    click({100, 100});
    click({200, 100});
    click({200, 200});
    click({100, 100});  // closes the triangle
    click({300, 300}, Qt::RightButton);
    EXPECT_EQ(panelText(1), "Nodes: 3");
    EXPECT_EQ(panelText(2), "Links: 3");
    EXPECT_EQ(ed().Nodes[1].X, 1500);
    EXPECT_EQ(ed().Links[1].RestLength, 1500);
    EXPECT_EQ(ed().Links[3].N2, 1);

    drag({200, 200}, {200, 300});
    EXPECT_EQ(ed().Nodes[3].Y, 4500);
    EXPECT_EQ(ed().Links[2].RestLength, 3000) << "same is pressed";
    press("same");
    press("snap");
    drag({200, 300}, {212, 310});
    EXPECT_EQ(ed().Nodes[3].X, 3250);
    EXPECT_EQ(ed().Links[2].RestLength, 3000) << "same is released";

    click({400, 400}, Qt::RightButton);
    doubleClick({150, 100});  // the middle of the first link
    EXPECT_TRUE(ed().Links[1].Animator);
    EXPECT_EQ(panelText(5), "Link: 1  (animated)");
    EXPECT_TRUE(button("Toolbar2", "animator")->isChecked());
    preset("k", 7);
    EXPECT_EQ(ed().Links[1].k, 20);
    EXPECT_EQ(button("Toolbar2", "k")->toolTip(), "k: 20");
    doubleClick({100, 100});
    EXPECT_TRUE(ed().Nodes[1].Used) << "the first double click selects";
    doubleClick({100, 100});
    EXPECT_FALSE(ed().Nodes[1].Used);
    EXPECT_EQ(panelText(2), "Links: 1");
}

TEST_F(Window, QuestionsComeWithTheValueSelected) {
    QString said;
    answerNext("7.5", Qt::Key_Return, &said);
    choose("mnuDefaultK");
    EXPECT_EQ(said, "Default Spring Constant|5");
    EXPECT_EQ(ed().DefaultLinkK, 7.5F);
    answerNext("9", Qt::Key_Escape);
    choose("mnuDefaultK");
    EXPECT_EQ(ed().DefaultLinkK, 7.5F);
    window_->perform("title", [](Editor& ed, Host&) { ed.ProjectTitle = std::string(1000000, 'W'); });
    answerNext("Spider", Qt::Key_Return, &said);
    choose("mnuSetTitle");
    EXPECT_EQ(said.indexOf('|'), 200) << "no caption of megabytes";
    EXPECT_EQ(ed().ProjectTitle, "Spider");
    answerNext("2", Qt::Key_Return, &said);
    pressProperty("gravity");
    EXPECT_EQ(said, "Custom Value|1");
    EXPECT_EQ(panelText(5), "Gravity changed to 2");
    EXPECT_EQ(button("Toolbar2", "gravity")->toolTip(), "Gravity: 2");

    click({100, 100});
    click({200, 100});
    click({400, 400}, Qt::RightButton);
    click({150, 100});
    ASSERT_NE(ed().SelectedLink, none);
    answerNext({}, Qt::Key_Escape, &said);
    press("delete");
    EXPECT_EQ(said, "You are about to delete BOTH a node and a link.  Proceed?");
    EXPECT_EQ(panelText(1), "Nodes: 2");
}

TEST_F(Window, TicksWaitWhileABoxIsOpen) {
    press("start");
    EXPECT_TRUE(await([&] { return ed().Cycles > 0; }));
    int due = 0;  // as often as a step would have been
    QTimer alike;
    alike.start(find<QTimer>("Timer1")->interval());
    QObject::connect(&alike, &QTimer::timeout, [&] { ++due; });
    std::int32_t before = 0, after = -1;
    inNextBox([&](QWidget& box) {
        before = ed().Cycles;
        EXPECT_TRUE(await([&, from = due] { return due > from + 4; }));
        after = ed().Cycles;
        box.close();
    });
    choose("mnuDefaultK");
    EXPECT_EQ(after, before);
    EXPECT_TRUE(await([&] { return ed().Cycles > after; }));
}

TEST_F(Window, SavesUnderATypedNameAndFindsItAgain) {
    click({100, 100});
    click({200, 100});
    auto* list = find<QComboBox>("lstSaved");
    window_->activateWindow();
    QTest::mouseClick(list->lineEdit(), Qt::LeftButton);
    list->setFocus();
    const auto typeKey = [&](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    list->lineEdit()->selectAll();
    QTest::keyClicks(QApplication::focusWidget(), "mine");
    typeKey(Qt::Key_Home);
    typeKey(Qt::Key_Delete);  // not the menu's shortcut
    EXPECT_EQ(UsedNodes(ed()), 2);
    typeKey(Qt::Key_Return);
    EXPECT_EQ(panelText(5), "Project ine saved!");
    EXPECT_EQ(QApplication::focusWidget(), find("picS"));
    EXPECT_TRUE(std::filesystem::exists(folder_.path / "zoo" / "ine.bot"));
    press("new");
    EXPECT_EQ(panelText(1), "Nodes: 0");
    press("refresh");
    EXPECT_EQ(panelText(1), "Nodes: 2");
    QString said;
    QTest::mouseClick(list->lineEdit(), Qt::LeftButton);
    bool menuOpened = false;
    when([] { return QApplication::activePopupWidget() != nullptr; },
         [&] { menuOpened = QApplication::activePopupWidget()->close(); });
    QTest::keyClick(list->lineEdit(), Qt::Key_G, Qt::AltModifier);
    EXPECT_TRUE(await([&] { return menuOpened; }));
    list->setEditText("../up");
    answerNext({}, Qt::Key_Return, &said);
    press("save");
    EXPECT_FALSE(said.isEmpty());
    EXPECT_FALSE(std::filesystem::exists(folder_.path / "up.bot"));
}

TEST_F(Window, TheWheelLeavesTheListsAlone) {
    auto* projects = find<QComboBox>("lstSaved");
    for (const char* name : {"one", "two"}) {
        projects->setEditText(name);
        press("save");
    }
    click({100, 100});
    for (auto* list : {projects, find<QComboBox>("lstSprites")})
        for (const int turn : {120, -120}) {
            QWheelEvent wheel({9, 9}, list->mapToGlobal(QPointF(9, 9)), {}, {0, turn}, {}, {},
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(list, &wheel);
        }
    EXPECT_EQ(UsedNodes(ed()), 1);
    EXPECT_EQ(ed().savedText, "two");
    EXPECT_EQ(ed().Nodes[1].Sprite, noSprite);
}

TEST_F(Window, TheWheelOverTheClockGoesThroughTheRun) {
    click({100, 100});
    click({400, 400}, Qt::RightButton);
    runAWhile();
    const float end = ed().AnimationTime;
    const auto turn = [&](int notches) {
        QWheelEvent wheel({9, 9}, find("Panel4")->mapToGlobal(QPointF(9, 9)), {}, {0, 120 * notches}, {}, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(find("Panel4"), &wheel);
        return ed().AnimationTime;
    };
    EXPECT_LT(turn(-2), end) << panelText(5).toStdString();
    EXPECT_FLOAT_EQ(turn(2), end);
    QTest::keyClick(find("picS"), Qt::Key_Left, Qt::ControlModifier);
    EXPECT_LT(ed().AnimationTime, end);
}

TEST_F(Window, ARestartShowsTheSameWorld) {
    click({100, 100});
    click({200, 100});
    press("grid");
    choose("mnuWalls");
    runAWhile();
    const Editor before = ed();
    restart();
    EXPECT_FALSE(ed().marks.mnuWalls);
    EXPECT_FALSE(find<QAction>("mnuWalls")->isChecked());
    EXPECT_TRUE(button("Toolbar1", "grid")->isChecked());
    EXPECT_EQ(ed().savedText, "resume");
    EXPECT_FALSE(ed().Timer1.enabled);
    ASSERT_EQ(ed().Nodes.size(), before.Nodes.size());
    EXPECT_EQ(ed().Nodes[2].Y, before.Nodes[2].Y);
    EXPECT_EQ(ed().AnimationTime, before.AnimationTime);
    choose("mnuAutoResume");
    restart();
    EXPECT_EQ(UsedNodes(ed()), 0);
}

TEST_F(Window, ARefusedCloseChangesNothing) {
    press("start");
    std::filesystem::remove_all(folder_.path / "zoo");
    putFile(folder_.path / "zoo", "no folder");
    QString said;
    answerNext({}, Qt::Key_Return, nullptr, [&] { answerNext({}, Qt::Key_Escape, &said); });
    EXPECT_FALSE(window_->close());
    EXPECT_EQ(said, "The project could not be saved. Close the program and lose it?");
    EXPECT_TRUE(window_->isVisible());
    EXPECT_TRUE(ed().buttons.start && ed().Timer1.enabled) << "the run goes on";
    std::filesystem::remove(folder_.path / "zoo");
    EXPECT_TRUE(window_->close());
    EXPECT_FALSE(ed().Timer1.enabled);
}

TEST_F(Window, AStoreThatCannotBeWrittenIsSaidAndTheProgramGoesOn) {
    const QString blocked = QString::fromStdString((folder_.path / "blocked").string());
    putFile(blocked.toStdString(), "not a folder");
    qputenv("XDG_CONFIG_HOME", blocked.toUtf8());
    start();
    EXPECT_TRUE(ed().marks.mnuWalls) << "defaults";
    QString said;
    answerNext({}, Qt::Key_Return, &said);
    EXPECT_TRUE(window_->close());
    EXPECT_TRUE(said.contains("cannot be written")) << said.toStdString();
    EXPECT_TRUE(std::filesystem::exists(folder_.path / "zoo" / "resume.bot"));
}

TEST_F(Window, StripsAndPathOpenBelow) {
    click({100, 100});
    const int height = find("picS")->height();
    choose("mnuDisplayAngleManager");
    EXPECT_TRUE(find("picPhase")->isVisible());
    EXPECT_GE(find("picPhase")->y(), find("picS")->geometry().bottom());
    QFile::copy(ZENTRIK_SOURCE_DIR "/sprites/bee.svg",
                QString::fromStdString((folder_.path / "sprites" / "a.svg").string()));
    window_->perform("Change", [](Editor& ed, Host&) { ed.Nodes[1].Sprite = "a.svg"; });
    choose("mnuDisplayBrowser");
    EXPECT_EQ(find<QComboBox>("lstSprites")->itemText(3), "a.svg") << "the folder is read again";
    EXPECT_EQ(ed().Nodes[1].SpriteIndex, 3);
    EXPECT_TRUE(find("Frame1")->isVisible() && find("HScroll1")->isVisible());
    EXPECT_EQ(find<QScrollBar>("HScroll1")->maximum(), 2);
    const QPoint second(6 + 43 + 20, 23);  // of slots of 40 pixels, 3 apart
    QTest::mouseClick(find("Frame1")->childAt(second), Qt::LeftButton);
    EXPECT_EQ(ed().Nodes[1].Sprite, "bee.svg");
    EXPECT_EQ(find<QComboBox>("lstSprites")->currentText(), "bee.svg");
    choose("mnuDisplayAngleManager");
    choose("mnuDisplayBrowser");
    EXPECT_FALSE(find("picPhase")->isVisible());
    EXPECT_EQ(find("picS")->height(), height);

    choose("mnuDisplayPath");
    auto* path = find("frmPath");
    EXPECT_TRUE(window_->screen()->availableGeometry().contains(path->frameGeometry()));
    EXPECT_TRUE(window_->isActiveWindow()) << "the keys stay with the main window";
    choose("mnuDisplayPath");
    window_->resize(1200, 500);
    choose("mnuDisplayPath");
    EXPECT_EQ(path->frameGeometry().top(), window_->frameGeometry().bottom() + 1 + 7);
    runAWhile();
    EXPECT_GT(ed().pathDots.size(), 1U);
    choose("mnuDisplayPath");
    choose("mnuDisplayPath");
    EXPECT_GT(ed().pathDots.size(), 1U) << "hiding keeps the dots";
    QTest::mouseClick(path, Qt::LeftButton);
    EXPECT_EQ(ed().pathDots.size(), 0U);
    EXPECT_TRUE(path->isVisible());
    path->close();
    EXPECT_FALSE(find<QAction>("mnuDisplayPath")->isChecked());
}

TEST_F(Window, DirectionalMarkChoosesThePairOfButtons) {
    const bool directional = ed().marks.mnuUseDirectional;
    EXPECT_EQ(button("Toolbar2", "direction")->isVisible(), directional);
    choose("mnuUseDirectional");
    settle();  // the bar lays itself out anew
    EXPECT_EQ(button("Toolbar2", "direction")->isVisible(), !directional);
    EXPECT_EQ(button("Toolbar2", "vxo")->isVisible(), directional);
}

TEST(MessageFetcher, AnswersStallsAndRefusals) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    QByteArray reply;  // empty: the server stalls
    QObject::connect(&server, &QTcpServer::newConnection, &server, [&] {
        QTcpSocket* socket = server.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [&reply, socket] {
            if (reply.isEmpty()) return;
            socket->write(reply);
            socket->disconnectFromHost();
        });
    });
    const QUrl address(QString("http://127.0.0.1:%1/message.txt").arg(server.serverPort()));
    const auto fetch = [&](const QUrl& url) {
        MessageFetcher fetcher;
        fetcher.timeout = reply.isEmpty() ? 100 : 60000;  // milliseconds
        std::optional<QString> text, problem;
        fetcher.fetched = [&](const QString& t, const QString& p) {
            text = t;
            problem = p;
        };
        fetcher.fetch(url);
        EXPECT_FALSE(text) << "nothing waits for the server";
        EXPECT_TRUE(QTest::qWaitFor([&] { return text.has_value(); }, 60000));
        return std::pair(text.value_or(""), problem.value_or(""));
    };
    reply = "HTTP/1.0 200 OK\r\nContent-Type: text/plain\r\n\r\nHello\nworld";
    EXPECT_EQ(fetch(address), std::pair(QString("Hello\nworld"), QString()));
    reply = "HTTP/1.0 200 OK\r\n\r\n" + QByteArray(100000, 'x');
    EXPECT_EQ(fetch(address), std::pair(QString(4096, 'x'), QString()));
    reply = "HTTP/1.0 200 OK\r\n\r\n" + QByteArray(4095, 'x') + "\u00e4\u00e4";
    EXPECT_EQ(fetch(address), std::pair(QString(4095, 'x'), QString())) << "cut between letters";
    reply = "HTTP/1.0 404 Not Found\r\n\r\nnothing here";
    EXPECT_FALSE(fetch(address).second.isEmpty());
    reply.clear();
    EXPECT_EQ(fetch(address).second, "the server did not answer in time");
    server.close();
    EXPECT_FALSE(fetch(address).second.isEmpty());
}

}  // namespace

}  // namespace zentrik
