// The way back as a person takes it: the project list's line that loads nothing by itself, undo and redo
// by key and by button, and the mark of unsaved changes.

#include "library/manage.h"
#include "ui/project_menu.h"
#include "window_rig.h"

#include <QAbstractItemView>
#include <QColorDialog>

namespace zentrik {

namespace {

class WayBack : public Window {
protected:
    ProjectList* list() { return find<ProjectList>("lstSaved"); }
    void saveAs(const char* name) {
        list()->setEditText(name);
        press("save");
    }
    // Projects "one" and "walker" with a node each, "resume" from a former run, and two new nodes.
    void fillLibrary() {
        click({100, 100});
        saveAs("one");
        saveAs("walker");
        restart();
        ASSERT_EQ(ed().savedText, "resume");
        ASSERT_EQ(list()->count(), 3);
        click({300, 300});
        click({300, 200});
        ASSERT_EQ(UsedNodes(ed()), 3);
        window_->activateWindow();
    }
    void typeName(const char* name) {
        QTest::mouseClick(list()->lineEdit(), Qt::LeftButton);
        list()->setFocus();
        list()->lineEdit()->selectAll();
        QTest::keyClicks(list()->lineEdit(), name);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
};

TEST_F(WayBack, LeavingTheNameLoadsNothing) {
    fillLibrary();
    const auto keptBy = [&](const char* way, const char* text) {
        EXPECT_EQ(UsedNodes(ed()), 3) << way;
        EXPECT_TRUE(ed().DrawMode) << way;
        EXPECT_EQ(ed().savedText, text) << way;
    };
    for (const char* name : {"", "walker", "resume", "new name"}) {
        const std::string before = ed().savedText;
        typeName(name);
        if (name[0] == '\0') list()->setEditText(QString::fromStdString(before));
        key(Qt::Key_Escape);
        keptBy("Escape", before.c_str());
        EXPECT_TRUE(find("picS")->hasFocus());
        const char* kept = name[0] == '\0' ? before.c_str() : name;
        typeName(kept);
        key(Qt::Key_Tab);
        keptBy("Tab", kept);
        typeName(kept);
        QTest::mouseMove(find("picS"), {500, 300});
        find("picS")->setFocus(Qt::MouseFocusReason);
        keptBy("a click elsewhere", kept);
        typeName(kept);
        QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(list()->lineEdit(), &away);
        keptBy("another window", kept);
    }
    typeName("fresh");
    key(Qt::Key_Return);
    keptBy("Enter", "fresh");
    EXPECT_EQ(panelText(5), "Project fresh saved!");
    EXPECT_TRUE(std::filesystem::exists(folder_.path / "zoo" / "fresh.bot"));
}

TEST_F(WayBack, AChoiceInTheOpenedListLoads) {
    fillLibrary();
    typeName("walker");
    key(Qt::Key_Down);
    QAbstractItemView* names = list()->view();
    ASSERT_TRUE(await([&] { return names->isVisible(); }));
    EXPECT_EQ(names->currentIndex().data().toString(), "walker") << "it stands on what the text names";
    EXPECT_EQ(UsedNodes(ed()), 3);
    QTest::keyClick(names, Qt::Key_Return);
    ASSERT_TRUE(await([&] { return UsedNodes(ed()) == 1; }));
    EXPECT_EQ(ed().savedText, "walker");
    EXPECT_EQ(window_->windowTitle(), "walker[*] - Zentrik");
    EXPECT_FALSE(window_->isWindowModified());
    QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
    EXPECT_EQ(UsedNodes(ed()), 3);
    EXPECT_EQ(ed().savedText, "walker") << "as it was typed before the choice";
}

TEST_F(WayBack, UndoAndRedoByKeyAndButton) {
    click({100, 100});
    click({200, 100});
    saveAs("mine");
    EXPECT_FALSE(window_->isWindowModified());
    const auto tip = [&](const char* name) { return find<QToolButton>(name)->toolTip().toStdString(); };
    EXPECT_EQ(tip("undo"), "Undo: Node 2 added (Alt+Backspace)");
    EXPECT_FALSE(find<QToolButton>("redo")->isEnabled());
    find("picS")->setFocus();
    click({200, 100});
    QTest::keyClick(find("picS"), Qt::Key_Delete);  // the whole model goes
    EXPECT_EQ(panelText(1), "Nodes: 0");
    EXPECT_TRUE(window_->isWindowModified());
    EXPECT_EQ(tip("undo"), "Undo: All nodes removed (Alt+Backspace)");
    QTest::keyClick(find("picS"), Qt::Key_Backspace, Qt::AltModifier);
    EXPECT_EQ(panelText(1), "Nodes: 2");
    EXPECT_EQ(panelText(5), "Undone: All nodes removed");
    EXPECT_FALSE(window_->isWindowModified());
    EXPECT_EQ(tip("redo"), "Redo: All nodes removed (Alt+Shift+Backspace)");
    QTest::keyClick(find("picS"), Qt::Key_Backspace, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(panelText(1), "Nodes: 0");
    for (int i = 0; i < 3; ++i) QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
    EXPECT_EQ(UsedNodes(ed()), 0) << "two clicks, two nodes";
    EXPECT_FALSE(find<QToolButton>("undo")->isEnabled());
    QTest::mouseClick(find<QToolButton>("redo"), Qt::LeftButton);
    press("start");
    EXPECT_TRUE(await([&] { return ed().Cycles > 3; }));
    QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
    EXPECT_FALSE(ed().Timer1.enabled);
    EXPECT_EQ(panelText(5), "Undone: Animation run");
    EXPECT_EQ(ed().AnimationTime, 0);
}

TEST_F(WayBack, TheRunIsGoneThroughByKeysBehindAnyStartAndUndo) {
    click({100, 100});
    runAWhile();
    const auto steps = ed().Cycles;
    const auto expectAt = [&](int step, int last) {
        EXPECT_EQ(panelText(5), QString("Step %1 of %2").arg(step).arg(last));
        EXPECT_EQ(panelText(3), QString("Cycles: %1").arg(step));
    };
    key(Qt::Key_Left, Qt::ControlModifier);
    key(Qt::Key_Left, Qt::ControlModifier);
    expectAt(steps - 2, steps);
    for (int i = 0; i < 2; ++i) QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
    EXPECT_EQ(panelText(5), "Undone: Animation run");
    key(Qt::Key_Right, Qt::ControlModifier);
    expectAt(1, steps);
    runAWhile();
    const auto further = ed().Cycles;
    key(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    expectAt(0, further);
}

TEST_F(WayBack, EveryButtonNamesItsStep) {
    click({100, 100});
    click({300, 100});
    ASSERT_EQ(ed().SelectedNode, 2);
    const auto undoTip = [&] { return find<QToolButton>("undo")->toolTip().toStdString(); };
    for (const char* key : {"locked", "shooter"}) {
        pressProperty(key);
        const std::string said = ed().panels[4];
        QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
        window_->perform("Change", [&](Editor& record, Host&) { panel(record, 5) = said; });
        pressProperty(key);  // says nothing new
        const std::string name = button("Toolbar2", key)->accessibleName().toStdString();
        EXPECT_EQ(undoTip(), "Undo: " + name + " (Alt+Backspace)");
    }
    inNextBox([](QWidget& box) {
        dynamic_cast<QColorDialog&>(box).setCurrentColor(Qt::cyan);
        dynamic_cast<QColorDialog&>(box).accept();
    });
    pressProperty("color");
    EXPECT_EQ(undoTip(), "Undo: Node Color (Alt+Backspace)");
}

TEST_F(WayBack, ARenameIsNoStep) {
    click({100, 100});
    saveAs("wa");
    click({300, 100});
    press("save");
    answerNext("wz", Qt::Key_Return);
    for (const ProjectMenuRow& row : projectMenuRows())
        if (row.command == renameProject) window_->perform(row.what, row.command);
    ASSERT_EQ(ed().savedText, "wz");
    QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
    EXPECT_EQ(ed().savedText, "wz");
    EXPECT_EQ(UsedNodes(ed()), 1);
    press("save");
    QTest::mouseClick(find<QToolButton>("redo"), Qt::LeftButton);
    EXPECT_EQ(ed().savedText, "wz");
    EXPECT_FALSE(std::filesystem::exists(folder_.path / "zoo" / "wa.bot"));
}

}  // namespace

}  // namespace zentrik
