#pragma once
// Drives the real window by real events and saves what it shows.

#include "app/window/frm_main.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QtTest/QTest>
#include <cstdio>

namespace zentrik {

class Photographer {
public:
    Photographer(const QString& program, QString pictures)
        : window_(program), pictures_(std::move(pictures)) {
        window_.resize(1200, 640);
        window_.show();
        if (!QTest::qWaitForWindowExposed(&window_)) std::exit(1);
    }

    void open(const QString& project) {
        auto* list = window_.findChild<QComboBox*>("lstSaved");
        list->lineEdit()->setText(project);
        press("refresh");
    }
    // For as many steps as the timer makes in so long, so that a busy machine takes the same pictures.
    void play(int milliseconds) {
        press("start");
        const Editor& ed = window_.editor();
        const std::int32_t end = ed.Cycles + milliseconds / ed.timerPeriod;
        const auto over = [&] { return ed.Cycles >= end || !ed.Timer1.enabled; };
        if (!QTest::qWaitFor(over, 60 * milliseconds)) std::exit(1);
    }
    void stop() {
        if (button("Toolbar1", "start")->isChecked()) press("start");
    }
    void press(const char* key) { QTest::mouseClick(button("Toolbar1", key), Qt::LeftButton); }
    void choose(const char* name) { window_.findChild<QAction*>(name)->trigger(); }
    void preset(const char* key, const char* text) {
        for (QAction* entry : button("Toolbar2", key)->menu()->actions())
            if (entry->text() == text) return entry->trigger();
    }
    void click(QPoint at, Qt::MouseButton mouseButton = Qt::LeftButton) {
        auto* scene = window_.findChild<QWidget*>("picS");
        QTest::mouseMove(scene, at);
        QTest::mouseClick(scene, mouseButton, {}, at);
    }
    void hover(QPoint at) { QTest::mouseMove(window_.findChild<QWidget*>("picS"), at); }
    // As the platform delivers it: press, release, double click, release.
    void doubleClick(QPoint at) {
        click(at);
        auto* scene = window_.findChild<QWidget*>("picS");
        QMouseEvent event(QEvent::MouseButtonDblClick, at, scene->mapToGlobal(at), Qt::LeftButton,
                          Qt::LeftButton, {});
        QApplication::sendEvent(scene, &event);
        QTest::mouseRelease(scene, Qt::LeftButton, {}, at);
    }
    void resize(int width, int height) {
        window_.resize(width, height);
        QTest::qWait(20);
    }

    void take(const char* name) { take(&window_, name); }
    void take(QWidget* widget, const char* name) {
        QTest::qWait(40);
        const QString file = pictures_ + "/" + name + ".png";
        if (!widget->grab().save(file)) std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
    }
    void takeMenu(const char* name, const char* picture) {
        auto* menu = window_.findChild<QMenu*>(name);
        menu->popup(window_.mapToGlobal(QPoint(0, 30)));
        take(menu, picture);
        menu->close();
    }
    // Answers the input box that the menu entry opens.
    void answer(const char* name, const char* text) {
        QTimer::singleShot(200, &window_, [text] {
            QWidget* box = QApplication::activeModalWidget();
            if (box == nullptr) std::exit(1);
            box->findChild<QLineEdit*>()->setText(text);
            QTest::keyClick(box, Qt::Key_Return);
        });
        choose(name);
    }
    QWidget* part(const char* name) { return window_.findChild<QWidget*>(name); }

private:
    frmMain window_;
    QString pictures_;

    QToolButton* button(const char* bar, const char* key) {
        return window_.findChild<QToolBar*>(bar)->findChild<QToolButton*>(key);
    }
};

}  // namespace zentrik
