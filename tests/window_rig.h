#pragma once
// The real window in a folder of its own, driven by real mouse and key events, offscreen.

#include "app/window/frm_main.h"
#include "model/store.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QToolBar>
#include <QToolButton>
#include <QtTest/QTest>
#include <functional>

namespace zentrik {

class Window : public testing::Test {
protected:
    TemporaryFolder folder_;
    std::unique_ptr<frmMain> window_;

    void SetUp() override {
        const QString path = QString::fromStdString(folder_.path.string());
        qputenv("XDG_CONFIG_HOME", path.toUtf8() + "/settings");
        std::filesystem::create_directory(folder_.path / "sprites");
        std::filesystem::create_directory(folder_.path / "zoo");
        for (const char* name : {"ant.svg", "bee.svg"})
            QFile::copy(QString(ZENTRIK_SOURCE_DIR "/sprites/") + name, path + "/sprites/" + name);
        start();
    }
    std::unique_ptr<frmMain> makeWindow() const {
        QCursor::setPos(0, 0);
        settle();
        return std::make_unique<frmMain>(QString::fromStdString(folder_.path.string()));
    }
    void start() {
        window_ = makeWindow();
        window_->resize(1200, 700);
        show();
    }
    void show() {
        window_->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window_.get(), longest));
        QTest::mouseMove(window_.get(), {1, 1});  // a move to where the pointer already is reaches nobody
    }
    void restart() {
        ASSERT_TRUE(window_->close());
        start();
    }

    static constexpr int longest = 30000;  // milliseconds, for what takes a few
    template <class Condition>
    static bool await(Condition holds) {
        return QTest::qWaitFor(holds, longest);
    }
    // Lets everything happen that has been asked for: layouts, shows, closed windows.
    static void settle() {
        for (int round = 0; round < 5; ++round) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }
    // Acts as soon as a condition holds, from within whatever box is open by then.
    void when(const std::function<bool()>& holds, const std::function<void()>& act) {
        QTimer::singleShot(5, window_.get(), [=, this] { holds() ? act() : when(holds, act); });
    }
    template <class Act>
    void inNextBox(Act act) {
        when([] { return QApplication::activeModalWidget() != nullptr; },
             [act] { act(*QApplication::activeModalWidget()); });
    }
    // Starts and stops when some steps have run.
    void runAWhile() {
        const std::int32_t before = ed().Cycles;
        press("start");
        EXPECT_TRUE(await([&] { return ed().Cycles > before + 2; }));
        press("start");
    }

    const Editor& ed() const { return window_->editor(); }
    template <class Widget = QWidget>
    Widget* find(const char* name) const {
        auto* found = window_->findChild<Widget*>(name);
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    QToolButton* button(const char* bar, const char* key) const {
        return find<QToolBar>(bar)->findChild<QToolButton*>(key);
    }
    void press(const char* key) { QTest::mouseClick(button("Toolbar1", key), Qt::LeftButton); }
    void pressProperty(const char* key) { QTest::mouseClick(button("Toolbar2", key), Qt::LeftButton); }
    void choose(const char* name) { find<QAction>(name)->trigger(); }
    void preset(const char* key, int entry) {
        button("Toolbar2", key)->menu()->actions().at(entry)->trigger();
    }
    void expectEveryButtonVisible() const {
        for (const char* bar : {"Toolbar1", "Toolbar2"})
            for (const QToolButton* tool : find<QToolBar>(bar)->findChildren<QToolButton*>()) {
                const QString key = tool->objectName();
                if (key.startsWith("qt_") || key == "vxo" || key == "vyo") continue;
                EXPECT_TRUE(tool->isVisible()) << key.toStdString() << " at " << window_->width();
                EXPECT_LE(tool->mapTo(window_.get(), tool->rect().bottomRight()).x(), window_->width());
            }
    }
    QString panelText(int number) const {
        return find<QLabel>(qPrintable(QString("Panel%1").arg(number)))->text();
    }

    // Scene places in pixels.
    void moveTo(QPoint at) { QTest::mouseMove(find("picS"), at); }
    void click(QPoint at, Qt::MouseButton mouseButton = Qt::LeftButton) {
        moveTo(at);
        QTest::mouseClick(find("picS"), mouseButton, {}, at);
    }
    void drag(QPoint from, QPoint to) {
        moveTo(from);
        QTest::mousePress(find("picS"), Qt::LeftButton, {}, from);
        moveTo(to);
        QTest::mouseRelease(find("picS"), Qt::LeftButton, {}, to);
    }
    // As the platform delivers it: press, release, double click, release.
    void doubleClick(QPoint at) {
        click(at);
        QMouseEvent event(QEvent::MouseButtonDblClick, at, find("picS")->mapToGlobal(at), Qt::LeftButton,
                          Qt::LeftButton, {});
        QApplication::sendEvent(find("picS"), &event);
        QTest::mouseRelease(find("picS"), Qt::LeftButton, {}, at);
    }
    // Types into the next modal box and closes it with a key; gives what the box said. What comes then?
    void answerNext(
        const QString& text, Qt::Key key, QString* said = nullptr,
        const std::function<void()>& then = [] {}) {
        inNextBox([=](QWidget& box) {
            then();
            if (auto* message = qobject_cast<QMessageBox*>(&box)) {
                if (said != nullptr) *said = message->text();
                auto* choice = message->button(key == Qt::Key_Escape ? QMessageBox::Cancel : QMessageBox::Ok);
                return QTest::mouseClick(choice, Qt::LeftButton);
            }
            auto* line = box.findChild<QLineEdit*>();
            if (said != nullptr) *said = box.windowTitle() + "|" + line->selectedText();
            if (!text.isEmpty()) QTest::keyClicks(line, text);
            QTest::keyClick(line, key);
        });
    }
};

}  // namespace zentrik
