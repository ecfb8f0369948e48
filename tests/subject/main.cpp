// A program to be killed: zentrik_subject FOLDER draws two nodes by mouse, says so and goes on as the
// program does. What it finds left by others it restores.

#include "app/program_ends.h"
#include "app/window/frm_main.h"

#include <QApplication>
#include <QtTest/QTest>
#include <cstdio>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName("Zentrik");
    if (argc < 2) return 2;
    zentrik::frmMain window(QString::fromLocal8Bit(argv[1]));
    window.resize(1200, 700);
    window.show();
    const zentrik::ProgramEnds ends(app, window);
    auto* scene = window.findChild<QWidget*>("picS");
    for (const QPoint at : {QPoint(100, 100), QPoint(200, 100)}) {
        QTest::mouseMove(scene, at);
        QTest::mouseClick(scene, Qt::LeftButton, {}, at);
    }
    std::puts("drawn");
    std::fflush(stdout);
    return QApplication::exec();
}
