// The project list's context menu and the box of earlier versions, by mouse and by keyboard.

#include "app/project_list.h"
#include "project/backups.h"
#include "window_rig.h"

#include <QAbstractItemView>
#include <QBitmap>
#include <QContextMenuEvent>
#include <QTreeWidget>

namespace zentrik {

namespace {

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
    EXPECT_EQ(QRegion(ink).boundingRect(), QRect(4, 20, 113, 32))
        << "the balls fill the width, in the middle";
    EXPECT_NE(drawn.pixelColor(60, 36), QColor(Qt::white)) << "the link";
    EXPECT_EQ(UsedNodes(ed()), 1);
    EXPECT_EQ(ed().savedText, "mine");
    EXPECT_TRUE(window_->isWindowModified()) << "no file changed";
    QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
    EXPECT_EQ(UsedNodes(ed()), 3);
    inVersions([](QTreeWidget& rows) { QTest::keyClick(&rows, Qt::Key_Escape); });
    QTest::keyClick(openMenu(*list(), QContextMenuEvent::Mouse), Qt::Key_E);
    EXPECT_EQ(UsedNodes(ed()), 3);
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
