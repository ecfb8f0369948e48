#include "app/frm_main.h"
#include "app/program_ends.h"

#include <QApplication>
#include <QTimer>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("Zentrik");
    QApplication::setApplicationVersion(ZENTRIK_VERSION);
    zentrik::frmMain window;
    window.show();
    const zentrik::ProgramEnds ends(app, window);
    QTimer::singleShot(0, &window, [&] { window.offerLeftCopies(); });
    return QApplication::exec();
}
