// Plays the program on a screen nobody sees: opens the main window as the program does, presses start
// with the mouse, lets the animation run, and saves what the screen shows.
// Usage: zentrik_picture PICTURE.png [SECONDS]

#include "app/legible.h"
#include "app/window/frm_main.h"

#include <QApplication>
#include <QScreen>
#include <QToolButton>
#include <QtTest/QTest>
#include <cstdio>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    zentrik::keepTextsLegible();
    QApplication::setApplicationName("Zentrik");
    QApplication::setStyle("Fusion");
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) {
        std::fputs("usage: zentrik_picture PICTURE.png [SECONDS]\n", stderr);
        return 2;
    }
    const double seconds = arguments.size() > 2 ? arguments[2].toDouble() : 3;

    zentrik::frmMain window;
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) return 1;
    QTest::mouseClick(window.findChild<QToolButton*>("start"), Qt::LeftButton);
    QTest::qWait(static_cast<int>(seconds * 1000));
    if (!window.screen()->grabWindow(window.winId()).save(arguments[1])) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(arguments[1]));
        return 1;
    }
    return 0;
}
