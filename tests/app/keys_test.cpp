// The program by keyboard alone.

#include "ui/keys.h"
#include "basics/numbers.h"
#include "basics/units.h"
#include "project/writer.h"
#include "scenes/scenes.h"
#include "window_rig.h"

#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <set>

namespace zentrik {
namespace {

class Keys : public Window {
protected:
    QWidget* scene() const { return find("picS"); }
    void hit(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, int times = 1) const {
        QWidget* focus = QApplication::focusWidget();
        for (int i = 0; i < times; ++i)
            QTest::keyClick(focus != nullptr ? focus : window_.get(), key, modifiers);
    }
    // Opens the line of the list, types and saves.
    void saveAs(const char* name) const {
        auto* list = find<QComboBox>("lstSaved");
        list->setFocus(Qt::TabFocusReason);
        list->lineEdit()->selectAll();
        QTest::keyClicks(list->lineEdit(), name);
        QTest::keyClick(list->lineEdit(), Qt::Key_Return);
    }
    void SetUp() override {
        Window::SetUp();
        QApplication::setActiveWindow(window_.get());
        scene()->setFocus();
        hit(Qt::Key_N, Qt::ControlModifier);
    }
};

TEST_F(Keys, DrawRunAndSaveACreature) {
    // A ring of eight nodes, each linked to the one before, closed at the first.
    const std::pair<Qt::Key, int> way[] = {{Qt::Key_Right, 8}, {Qt::Key_Right, 8}, {Qt::Key_Down, 8},
                                           {Qt::Key_Down, 8},  {Qt::Key_Left, 8},  {Qt::Key_Left, 8},
                                           {Qt::Key_Up, 8}};
    hit(Qt::Key_Right);  // the pointer appears
    hit(Qt::Key_Return);
    for (const auto& [key, times] : way) {
        hit(key, {}, times);
        hit(Qt::Key_Return);
    }
    hit(Qt::Key_Up, {}, 8);
    hit(Qt::Key_Return);
    EXPECT_EQ(UsedNodes(ed()), 8);
    EXPECT_EQ(UsedLinks(ed()), 8);
    hit(Qt::Key_Return, Qt::ShiftModifier, 2);  // stops drawing, deselects
    EXPECT_EQ(ed().SelectedNode, none);

    hit(Qt::Key_L, Qt::ShiftModifier);
    EXPECT_EQ(ed().SelectedLink, 8);
    EXPECT_EQ(button("Toolbar2", "k")->toolTip(), "k: 5");
    hit(Qt::Key_L);
    ASSERT_EQ(ed().SelectedLink, 1);
    hit(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(linkAt(ed(), 1).Animator);
    hit(Qt::Key_L, Qt::ShiftModifier);
    EXPECT_EQ(ed().SelectedLink, 8);
    hit(Qt::Key_N);
    EXPECT_EQ(ed().SelectedNode, 1);
    const std::int32_t before = nodeAt(ed(), 1).X;
    for (int i = 0; i < 5; ++i) QTest::keyPress(scene(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_TRUE(nodeAt(ed(), 1).BeingDragged);
    QTest::keyRelease(scene(), Qt::Key_Alt);
    EXPECT_EQ(nodeAt(ed(), 1).X, before + 375);
    EXPECT_FALSE(nodeAt(ed(), 1).BeingDragged);
    hit(Qt::Key_Backspace, Qt::AltModifier);
    EXPECT_EQ(nodeAt(ed(), 1).X, before) << "the whole drag is one step";
    QTest::keyPress(scene(), Qt::Key_Right, Qt::AltModifier);
    hit(Qt::Key_N, Qt::ShiftModifier);
    EXPECT_FALSE(nodeAt(ed(), 1).BeingDragged) << "another key ends the drag";
    EXPECT_EQ(ed().SelectedNode, 8);

    const std::int32_t cycles = ed().Cycles;
    hit(Qt::Key_Space);
    EXPECT_TRUE(ed().Timer1.enabled);
    EXPECT_TRUE(await([&] { return ed().Cycles > cycles + 3; }));
    hit(Qt::Key_Space);
    EXPECT_FALSE(ed().Timer1.enabled);
    hit(Qt::Key_Period);
    hit(Qt::Key_Home);
    EXPECT_EQ(ed().AnimationTime, 0);
    saveAs("by keys");
    EXPECT_TRUE(std::filesystem::exists(folder_.path / "zoo/by keys.bot"));
    EXPECT_TRUE(scene()->hasFocus());
}

// The first press ends the mouse's drag; what the keys drag until Alt is let go is one step of its own.
TEST_F(Keys, ADragByKeysTakesOverFromTheMouse) {
    click({100, 100});
    const auto place = [&] { return QPoint(nodeAt(ed(), 1).X, nodeAt(ed(), 1).Y) / twipsPerPixel; };
    for (const QPoint way : {QPoint(0, 0), QPoint(60, 0)}) {
        const QPoint from = place(), to = from + way;
        moveTo(from);
        QTest::mousePress(scene(), Qt::LeftButton, {}, from);
        QMouseEvent held(QEvent::MouseMove, to, scene()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(scene(), &held);
        for (int i = 0; i < 2; ++i) QTest::keyPress(scene(), Qt::Key_Down, Qt::AltModifier);
        QTest::keyRelease(scene(), Qt::Key_Alt);
        QTest::mouseRelease(scene(), Qt::LeftButton, {}, to);
        EXPECT_EQ(place(), to + QPoint(0, 10));
        hit(Qt::Key_Backspace, Qt::AltModifier);
        EXPECT_EQ(place(), to) << "both presses are one step";
        if (!way.isNull()) hit(Qt::Key_Backspace, Qt::AltModifier);
        EXPECT_EQ(place(), from) << "and the mouse's drag is another";
    }
}

TEST_F(Keys, ThePointerStaysInTheSceneAndOnTheGrid) {
    hit(Qt::Key_Left);
    hit(Qt::Key_Left, Qt::ShiftModifier, 100);
    hit(Qt::Key_Down, Qt::ShiftModifier, 100);
    hit(Qt::Key_Return);
    ASSERT_EQ(UsedNodes(ed()), 1);
    EXPECT_EQ(nodeAt(ed(), 1).X, 0);
    EXPECT_LT(nodeAt(ed(), 1).Y, ed().sceneHeight);
    press("snap");
    hit(Qt::Key_Up, {}, 3);
    hit(Qt::Key_Right);
    hit(Qt::Key_Return);
    ASSERT_EQ(UsedNodes(ed()), 2);
    EXPECT_EQ(nodeAt(ed(), 2).X % 250, 0);
    EXPECT_EQ(nodeAt(ed(), 2).Y % 250, 0);
    EXPECT_EQ(nodeAt(ed(), 2).X, 250);
}

TEST_F(Keys, WhatIsCopiedIsAProjectAndCanBePasted) {
    for (const QPoint at : {QPoint(100, 100), QPoint(200, 100), QPoint(200, 200)}) click(at);
    click({300, 300}, Qt::RightButton);
    click({300, 300}, Qt::RightButton);
    click({600, 300});  // another object, selected
    click({700, 300});
    click({300, 300}, Qt::RightButton);
    scene()->setFocus();
    hit(Qt::Key_C, Qt::ControlModifier);
    const QString text = QApplication::clipboard()->text();
    EXPECT_TRUE(text.startsWith("Zentrik   "));
    moveTo({400, 200});
    hit(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(UsedNodes(ed()), 7) << "two of five are the selected object";
    EXPECT_EQ(UsedLinks(ed()), 4);
    EXPECT_EQ(linkAt(ed(), 4).N1 + linkAt(ed(), 4).N2, 6 + 7);
    EXPECT_EQ(nodeAt(ed(), 7).X - nodeAt(ed(), 6).X, 100 * 15);
    QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
    EXPECT_EQ(UsedNodes(ed()), 5);

    Editor odd;  // a link leads nowhere
    scenes::addNodes(odd, {{0, 0}, {900, 0}});
    scenes::addLinks(odd, {{1, 2}, {1, 2}, {1, 2}});
    odd.Links[2].N1 = -2, odd.Links[3].N2 = 1000000;
    QApplication::clipboard()->setText(QString::fromStdString(projectBytes(odd)));
    hit(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(UsedNodes(ed()), 7);
    EXPECT_EQ(UsedLinks(ed()), 4);
    QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);

    for (const char* wrong : {"Dear node", "", "Zentrik   \r\nempty\r\n"}) {
        QApplication::clipboard()->setText(wrong);
        hit(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(UsedNodes(ed()), 5) << wrong;
        EXPECT_TRUE(panelText(5).contains("no Zentrik project")) << wrong;
    }
}

TEST_F(Keys, TheStripTurnsPhases) {
    for (const QPoint at : {QPoint(100, 100), QPoint(200, 100), QPoint(200, 200)}) click(at);
    for (const QPoint at : {QPoint(150, 100), QPoint(200, 150)}) doubleClick(at);
    choose("mnuDisplayAngleManager");
    find("picPhase")->setFocus();
    hit(Qt::Key_Left, {}, 3);
    EXPECT_EQ(ed().SelectedLink, 1) << "of equal phases the lower number is on the left";
    hit(Qt::Key_Right, Qt::ShiftModifier, 2);
    EXPECT_EQ(linkAt(ed(), 1).Angle, 10);
    press("snap");
    hit(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(linkAt(ed(), 1).Angle, 22.5F);
    hit(Qt::Key_Right, Qt::ShiftModifier, 2);
    hit(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(linkAt(ed(), 1).Angle, 45);
    hit(Qt::Key_Left);
    EXPECT_EQ(ed().SelectedLink, 2);
    hit(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(linkAt(ed(), 2).Angle, 0) << "there is nothing below";
}

TEST_F(Keys, NoKeyMeansTwoThings) {
    std::set<QString> seen;
    for (const QAction* action : window_->findChildren<QAction*>())
        if (!action->shortcut().isEmpty()) seen.insert(action->shortcut().toString());
    const std::set<QString> menus = seen;
    for (const KeyRow& row : keyRows()) {
        for (const QString& key : QString(row.keys).split(' ')) {
            const QString place = row.area == KeyArea::strip ? "strip " : "";
            EXPECT_TRUE(row.act == KeyAct::presets || seen.insert(place + key).second) << key.toStdString();
            EXPECT_FALSE(menus.contains(key)) << key.toStdString();
        }
        if (row.control == nullptr) continue;
        const QString tip = find("Toolbar1")->findChild<QWidget*>(row.control)->statusTip();
        EXPECT_TRUE(tip.endsWith(QString("(%1)").arg(row.keys))) << row.control;
    }
}

TEST_F(Keys, TabAndF6GoThroughWhatIsSeen) {
    choose("mnuDisplayAngleManager");
    scene()->setFocus();
    hit(Qt::Key_F6);
    EXPECT_TRUE(find("picPhase")->hasFocus());
    hit(Qt::Key_F6);
    QWidget* first = QApplication::focusWidget();
    EXPECT_EQ(first->objectName(), "new");
    hit(Qt::Key_F6, Qt::ShiftModifier, 2);
    EXPECT_TRUE(scene()->hasFocus());

    first->setFocus();
    QPoint last(-1, 0);
    int stops = 0;
    for (QWidget* at = first; at != scene() && stops < 200; at = QApplication::focusWidget(), ++stops) {
        const QPoint place = at->mapTo(window_.get(), QPoint(0, 0));
        const bool below = place.y() > last.y() + 10;
        EXPECT_TRUE(below || place.x() > last.x()) << at->objectName().toStdString();
        last = place;
        QTest::keyClick(at, Qt::Key_Tab);
        ASSERT_NE(QApplication::focusWidget(), at);
    }
    EXPECT_GT(stops, 40);
    EXPECT_LT(stops, 200);
}

TEST_F(Keys, PresetsOpenByKeys) {
    for (const auto& [key, modifiers] :
         {std::pair{Qt::Key_Down, Qt::AltModifier}, {Qt::Key_Menu, Qt::NoModifier}}) {
        QToolButton* gravity = button("Toolbar2", "gravity");
        gravity->setFocus(Qt::TabFocusReason);
        bool opened = false;
        QTimer::singleShot(0, window_.get(), [&] {
            opened = await([&] { return gravity->menu()->isVisible(); });
            QTest::keyClick(gravity->menu(), Qt::Key_Escape);
            gravity->menu()->close();
        });
        QTest::keyClick(gravity, key, modifiers);
        EXPECT_TRUE(await([&] { return opened; })) << key;
        EXPECT_FALSE(gravity->menu()->isVisible());
    }
}

// What an assistive program asks: the name, or the label that stands for it.
QString heardName(QWidget& widget) {
    QAccessibleInterface* control = QAccessible::queryAccessibleInterface(&widget);
    for (const auto& [other, relation] : control->relations(QAccessible::Label))
        if (relation.testFlag(QAccessible::Label)) return other->text(QAccessible::Name);
    return control->text(QAccessible::Name);
}

TEST_F(Keys, EveryControlSaysWhatItIsAndShows) {
    choose("mnuDisplayAngleManager");
    click({100, 100});
    int heard = 0;
    for (QWidget* widget : window_->findChildren<QWidget*>()) {
        const bool isPart =
            widget->objectName().startsWith("qt_") || qobject_cast<QLineEdit*>(widget) != nullptr;
        if ((widget->focusPolicy() & Qt::TabFocus) == 0 || !widget->isVisible() || isPart) continue;
        SCOPED_TRACE(widget->objectName().toStdString());
        const auto role = QAccessible::queryAccessibleInterface(widget)->role();
        EXPECT_FALSE(role == QAccessible::NoRole || role == QAccessible::Client ||
                     role == QAccessible::StaticText);
        EXPECT_FALSE(heardName(*widget).isEmpty());
        EXPECT_FALSE(widget->toolTip().isEmpty() && qobject_cast<QToolButton*>(widget) != nullptr);
        ++heard;
    }
    EXPECT_GT(heard, 60);
    EXPECT_TRUE(heardName(*find("lstSaved")).startsWith("Projects"));
    EXPECT_TRUE(heardName(*find("lstSprites")).startsWith("Sprite"));
    preset("gravity", 0);
    EXPECT_EQ(heardName(*button("Toolbar2", "gravity")), "Gravity");
    EXPECT_EQ(button("Toolbar2", "gravity")->accessibleDescription().toStdString(), realText(ed().Gravity));
    EXPECT_EQ(button("Toolbar2", "mass")->accessibleDescription(), "1");
    EXPECT_TRUE(button("Toolbar2", "k")->accessibleDescription().isEmpty()) << "no link is selected";
}

TEST_F(Keys, TheSelectionIsHeard) {
    click({100, 100});
    EXPECT_TRUE(scene()->accessibleDescription().contains("node: 1"));
    click({300, 300}, Qt::RightButton);
    click({300, 300}, Qt::RightButton);
    EXPECT_TRUE(scene()->accessibleDescription().startsWith("Nothing"));
}

}  // namespace
}  // namespace zentrik
