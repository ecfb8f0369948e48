// The project list's context menu and the box of earlier versions, by mouse and by keyboard.

#include "app/bars/project_list.h"
#include "library/backups.h"
#include "window_rig.h"

#include <QAbstractItemView>
#include <QBitmap>
#include <QContextMenuEvent>
#include <QToolTip>
#include <QTreeWidget>

namespace zentrik {

namespace {

namespace fs = std::filesystem;

class ProjectMenu : public Window {
protected:
    ProjectList* list() { return find<ProjectList>("lstSaved"); }
    void saveAs(const char* name) {
        list()->setEditText(name);
        press("save");
    }
    QMenu* openMenu(QWidget& on, QContextMenuEvent::Reason reason) {
        const QPoint at = on.rect().center();
        QContextMenuEvent event(reason, at, on.mapToGlobal(at));
        QApplication::sendEvent(&on, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        EXPECT_NE(menu, nullptr);
        return menu;
    }
    // Waits for the box of earlier versions and does something with its rows.
    void inVersions(const std::function<void(QTreeWidget&)>& act) {
        QTimer::singleShot(20, window_.get(), [this, act] {
            QWidget* box = QApplication::activeModalWidget();
            auto* rows = box != nullptr ? box->findChild<QTreeWidget*>() : nullptr;
            const auto last = rows != nullptr ? rows->topLevelItem(rows->topLevelItemCount() - 1) : nullptr;
            if (last == nullptr || last->text(4).isEmpty()) return inVersions(act);
            act(*rows);
        });
    }
};

TEST_F(ProjectMenu, OffersItsEntriesByMouseAndMenuKey) {
    for (QWidget* widget : {static_cast<QWidget*>(list()), static_cast<QWidget*>(list()->lineEdit())})
        for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
            QMenu* menu = openMenu(*widget, reason);
            QStringList captions;
            for (const QAction* action : menu->actions()) captions += action->text().remove('&');
            EXPECT_EQ(captions.join("|").toStdString(),
                      "Earlier Versions…|Rename…|Delete…|Show in Folder||Cut|Copy|Paste");
            menu->close();
        }
}

TEST_F(ProjectMenu, AnEarlierVersionIsOpenedByKeysAndCanBeUndone) {
    window_->perform("Title", [](Editor& ed, Host&) { ed.ProjectTitle = "one"; });
    click({100, 100});
    saveAs("mine");
    click({300, 150});
    saveAs("mine");
    click({200, 300});
    saveAs("mine");
    QStringList shown;
    QImage drawn;  // of the former version of two nodes
    inVersions([&](QTreeWidget& rows) {
        for (int i = 0; i < rows.topLevelItemCount(); ++i) {
            const QTreeWidgetItem& row = *rows.topLevelItem(i);
            shown += row.text(2) + " " + row.text(3) + " " + row.text(4);
            if (i == 0) drawn = row.icon(0).pixmap(120, 72).toImage();
        }
        QTest::keyClick(&rows, Qt::Key_Down);
        QTest::keyClick(&rows, Qt::Key_Return);
    });
    QMenu* menu = openMenu(*list()->lineEdit(), QContextMenuEvent::Keyboard);
    QTest::keyClick(menu, Qt::Key_E);
    EXPECT_EQ(shown.join("|").toStdString(), "2 1 one|1 0 one");
    const QBitmap ink = QBitmap::fromImage(drawn.createMaskFromColor(qRgb(255, 255, 255), Qt::MaskInColor));
    EXPECT_EQ(QRegion(ink).boundingRect(), QRect(2, 2, 117, 34)) << "the balls fill the width";
    EXPECT_NE(drawn.pixelColor(60, 18), QColor(Qt::white)) << "the link";
    EXPECT_EQ(UsedNodes(ed()), 1);
    EXPECT_EQ(ed().savedText, "mine");
    EXPECT_TRUE(window_->isWindowModified()) << "no file changed";
    QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
    EXPECT_EQ(UsedNodes(ed()), 3);
    inVersions([](QTreeWidget& rows) { QTest::keyClick(&rows, Qt::Key_Escape); });
    QTest::keyClick(openMenu(*list(), QContextMenuEvent::Mouse), Qt::Key_E);
    EXPECT_EQ(UsedNodes(ed()), 3);
}

// Whoever looks for the bridge finds it without loading all the others.
TEST_F(ProjectMenu, EntriesShowWhatIsInThem) {
    const fs::path samples(ZENTRIK_SOURCE_DIR "/zoo"), zoo = folder_.path / "zoo";
    for (const char* name : {"bridge.bot", "shoal.bot", "9 a moon.bot", "planets.bot"})
        fs::copy(samples / name, zoo / name);
    putFile(zoo / "bad.bot", "Zentrik\r\n<b>\r\nNodes\r\n1 : x\r\n");
    restart();
    list()->showPopup();
    QAbstractItemView* names = list()->view();
    ASSERT_TRUE(await([&] { return names->isVisible(); }));
    const auto tip = [&](const char* name) {
        const QRect entry = names->visualRect(names->model()->index(list()->findText(name), 0));
        QHelpEvent event(QEvent::ToolTip, entry.center(), names->viewport()->mapToGlobal(entry.center()));
        QApplication::sendEvent(names->viewport(), &event);
        return QToolTip::text();
    };
    EXPECT_TRUE(tip("bad").contains("bad, line 4")) << tip("bad").toStdString();
    const QString bridge = tip("bridge");
    EXPECT_TRUE(bridge.contains("bridge", Qt::CaseInsensitive)) << bridge.left(100).toStdString();
    const QByteArray data = bridge.section("base64,", 1).section('"', 0, 0).toLatin1();
    const QImage picture = QImage::fromData(QByteArray::fromBase64(data));
    EXPECT_EQ(std::max(picture.width(), picture.height()), 300);
    int inked = 0;
    for (int x = 0; x < picture.width(); ++x)
        inked += picture.pixel(x, picture.height() / 2) != picture.pixel(2, 2);
    EXPECT_GT(inked, 10) << "cars and hangers";
    for (const char* name : {"shoal", "9 a moon", "planets"}) {
        EXPECT_TRUE(tip(name).startsWith("<p>Press Display Sprites")) << name;
        names->setCurrentIndex(names->model()->index(list()->findText(name), 0));
        EXPECT_TRUE(names->accessibleDescription().startsWith("Press Display Sprites")) << name;
    }
}

TEST_F(ProjectMenu, AShippedSampleComesBack) {
    click({100, 100});
    saveAs("bridge");
    QTest::keyClick(openMenu(*list(), QContextMenuEvent::Mouse), Qt::Key_M);
    const std::string shipped = contentOf(ZENTRIK_SOURCE_DIR "/zoo/bridge.bot");
    EXPECT_EQ(contentOf(folder_.path / "zoo" / "bridge.bot"), shipped);
    EXPECT_EQ(ed().ProjectTitle, "A rope bridge in the rush hour");
    EXPECT_FALSE(window_->isWindowModified());
    EXPECT_EQ(formerVersions(folder_.path.string(), "bridge").size(), 1U);
    const auto offers = [&] {
        QMenu* menu = openMenu(*list(), QContextMenuEvent::Mouse);
        const bool offered = menu->findChild<QAction*>("restoreSample") != nullptr;
        menu->close();
        return offered;
    };
    EXPECT_FALSE(offers()) << "it is the shipped one";
    QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
    EXPECT_EQ(UsedNodes(ed()), 1);
    EXPECT_EQ(panelText(5), "Undone: Sample bridge restored");
    fs::remove(folder_.path / "zoo" / "bridge.bot");
    EXPECT_TRUE(offers());
    list()->setEditText("mine");
    EXPECT_FALSE(offers());
}

TEST_F(ProjectMenu, RenamesByKeyboard) {
    click({100, 100});
    saveAs("mine");
    answerNext("yours", Qt::Key_Return);
    QTest::keyClick(openMenu(*list()->lineEdit(), QContextMenuEvent::Keyboard), Qt::Key_R);
    EXPECT_EQ(list()->currentText(), "yours");
    EXPECT_EQ(list()->itemText(0), "yours");
}

TEST_F(ProjectMenu, ADamagedProjectThatIsChosenLeavesTheListsText) {
    click({100, 100});
    saveAs("good");
    putFile(folder_.path / "zoo" / "bad.bot", "Zentrik\r\nt\r\nNodes\r\n1 : x\r\n");
    saveAs("good");
    restart();
    list()->setEditText("typed");
    QTest::keyClick(list()->lineEdit(), Qt::Key_Down);
    QAbstractItemView* names = list()->view();
    ASSERT_TRUE(await([&] { return names->isVisible(); }));
    names->setCurrentIndex(names->model()->index(list()->findText("bad"), 0));
    QString said;
    answerNext({}, Qt::Key_Return, &said);
    QTest::keyClick(names, Qt::Key_Return);
    ASSERT_TRUE(await([&] { return !said.isEmpty(); }));
    EXPECT_TRUE(said.startsWith("zoo/bad.bot, line 4: field 2 (Used)")) << said.toStdString();
    ASSERT_TRUE(await([&] { return QApplication::activeModalWidget() == nullptr; }));
    EXPECT_EQ(list()->currentText(), "typed");
    EXPECT_EQ(ed().savedText, "typed");
    EXPECT_EQ(UsedNodes(ed()), 1);
}

}  // namespace

}  // namespace zentrik
