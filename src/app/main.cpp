#include "app/frm_main.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("Zentrik");
    QApplication::setApplicationVersion(ZENTRIK_VERSION);
    QApplication::setStyle("Fusion");
    zentrik::frmMain window;
    window.show();
    return QApplication::exec();
}
