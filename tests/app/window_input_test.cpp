// Boxes, drags and keys of the real window.

#include "app/boxes/input_box.h"
#include "ui/commands/online.h"
#include "window_rig.h"

namespace zentrik {

namespace {

TEST_F(Window, NumberBoxesHelpToTypeOne) {
    QString hint;
    const auto look = [&](const QString& typed) {
        inNextBox([&, typed](QWidget& box) {
            auto* line = box.findChild<QLineEdit*>();
            QTest::keyClicks(line, typed);
            hint = box.findChild<QLabel*>("Hint")->text();
            QTest::keyClick(line, Qt::Key_Return);
        });
    };
    look("0,5");
    choose("mnuDefaultK");
    EXPECT_EQ(ed().DefaultLinkK, 0.5F) << "a decimal comma is meant as the point";
    EXPECT_EQ(hint, "");
    look("x7");
    pressProperty("gravity");
    EXPECT_FALSE(hint.isEmpty());
    EXPECT_EQ(ed().Gravity, 0);
    look("Ants, bees");
    choose("mnuSetTitle");
    EXPECT_EQ(ed().ProjectTitle, "Ants, bees");
    EXPECT_EQ(hint, "");
}

TEST_F(Window, BoxesAreAsWideAsTheirTitles) {
    int width = 0, title = 0;
    inNextBox([&](QWidget& box) {
        width = box.width();
        title = box.fontMetrics().horizontalAdvance(box.windowTitle());
        box.close();
    });
    window_->perform("Change", [](Editor&, Host& host) {
        host.messageBox("!", "A title that is far longer than its message", BoxIcon::plain);
    });
    EXPECT_GT(width, title + 100);
}

TEST_F(Window, PromptsAreNoMarkup) {
    const InputBox marked(InputBox::Kind::text, "<b>i</b>", "", nullptr),
        plain(InputBox::Kind::text, "i", "", nullptr);
    const auto width = [](const InputBox& box) { return box.findChild<QLabel*>("")->sizeHint().width(); };
    EXPECT_GT(width(marked), 2 * width(plain));
}

TEST_F(Window, ADragEndsWhenTheButtonIsUp) {
    click({100, 100});
    click({400, 400}, Qt::RightButton);
    moveTo({100, 100});
    QTest::mousePress(find("picS"), Qt::LeftButton, {}, {100, 100});
    ASSERT_TRUE(ed().MouseIsDown);
    // The release went to another window.
    QMouseEvent move(QEvent::MouseMove, QPointF(300, 300), find("picS")->mapToGlobal(QPointF(300, 300)),
                     Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(find("picS"), &move);
    EXPECT_FALSE(ed().MouseIsDown);
    EXPECT_EQ(ed().Nodes[1].X, 1500);
    QTest::mouseRelease(find("picS"), Qt::LeftButton, {}, {300, 300});
    drag({100, 100}, {200, 100});
    EXPECT_EQ(ed().Nodes[1].X, 3000);

    moveTo({250, 250});
    EXPECT_TRUE(ed().rubberBand);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(find("picS"), &leave);
    EXPECT_FALSE(ed().rubberBand);
}

TEST_F(Window, TheListKeepsOnlyTheKeysThatEdit) {
    click({100, 100});
    auto* list = find<QComboBox>("lstSaved");
    const auto type = [&] {
        window_->activateWindow();
        QTest::mouseClick(list->lineEdit(), Qt::LeftButton);
        list->setFocus();
        ASSERT_TRUE(list->hasFocus());
        list->lineEdit()->selectAll();
        QTest::keyClicks(list, "one");
    };
    type();
    QTest::keyClick(list, Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(UsedNodes(ed()), 2) << "Ctrl+D duplicates the node";
    EXPECT_EQ(QApplication::focusWidget(), find("picS")) << "after a command the scene has the keys";
    type();
    QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(ed().savedText, "");
    EXPECT_EQ(UsedNodes(ed()), 2);
    QTest::keyClicks(list, "two");
    press("nextnode");
    EXPECT_EQ(QApplication::focusWidget(), find("picS"));
}

TEST(Online, MessagesAreCutBetweenLetters) {
    Editor ed;
    messageArrived(ed, "\r\n " + std::string(299, 'x') + "\u00e4\nsecond");
    EXPECT_EQ(panel(ed, 5), std::string(299, 'x'));
    messageArrived(ed, "H\u00e4llo\nsecond");
    EXPECT_EQ(panel(ed, 5), "H\u00e4llo");
}

}  // namespace

}  // namespace zentrik
