#include "app/program_ends.h"

#include "app/window/frm_main.h"

#include <QApplication>
#include <QSessionManager>
#include <cstdlib>

namespace zentrik {

namespace {

frmMain* running = nullptr;

void keepWork() {
    if (running != nullptr) running->keepWorkAndEnd();
}

}  // namespace

ProgramEnds::ProgramEnds(QApplication& app, frmMain& window) {
    running = &window;
    signals_.ended = [] {
        keepWork();
        QApplication::exit(0);  // closing the window would ask
    };
    // The session may go on after all, so this is not the end of the program yet.
    QObject::connect(
        &app, &QGuiApplication::commitDataRequest, &window, [](QSessionManager&) { running->keepWork(); },
        Qt::DirectConnection);
    std::atexit(keepWork);  // the windowing system calls exit() when the display is lost
}

ProgramEnds::~ProgramEnds() { running = nullptr; }

}  // namespace zentrik
