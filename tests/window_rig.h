#pragma once
// The real window in a folder of its own, driven by real mouse and key events, offscreen.

#include "app/frm_main.h"
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
        return std::make_unique<frmMain>(QString::fromStdString(folder_.path.string()));
    }
    void start() {
        window_ = makeWindow();
        window_->resize(1200, 700);
        window_->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
    }
    void restart() {
        ASSERT_TRUE(window_->close());
        start();
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
    // Types into the next modal box and closes it with a key; gives what the box said.
    void answerNext(const QString& text, Qt::Key key, QString* said = nullptr) {
        QTimer::singleShot(50, window_.get(), [this, text, key, said] {
            QWidget* box = QApplication::activeModalWidget();
            if (box == nullptr) return answerNext(text, key, said);
            if (auto* message = qobject_cast<QMessageBox*>(box)) {
                if (said != nullptr) *said = message->text();
                auto* choice = message->button(key == Qt::Key_Escape ? QMessageBox::Cancel : QMessageBox::Ok);
                return QTest::mouseClick(choice, Qt::LeftButton);
            }
            auto* line = box->findChild<QLineEdit*>();
            if (said != nullptr) *said = box->windowTitle() + "|" + line->selectedText();
            if (!text.isEmpty()) QTest::keyClicks(line, text);
            QTest::keyClick(line, key);
        });
    }
};

}  // namespace zentrik
