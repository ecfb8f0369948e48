#include "app/frm_main.h"

#include <QApplication>

#include <csignal>

int main(int argc, char** argv) {
    std::signal(SIGXFSZ, SIG_IGN);  // a save beyond a limit of the file size fails instead of ending us
    QApplication app(argc, argv);
    QApplication::setApplicationName("Zentrik");
    QApplication::setApplicationVersion(ZENTRIK_VERSION);
    QApplication::setStyle("Fusion");
    zentrik::frmMain window;
    window.show();
    return QApplication::exec();
}
