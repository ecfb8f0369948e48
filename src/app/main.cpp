#include "app/command_line.h"
#include "app/keeping/program_folder.h"
#include "app/legible.h"
#include "app/program_ends.h"
#include "app/running_program.h"
#include "app/window/frm_main.h"

#include <QApplication>
#include <QTimer>

int main(int argc, char** argv) {
    const zentrik::CommandLine line = zentrik::readCommandLine(argc, argv);
    if (line.exitStatus) return *line.exitStatus;
    QApplication app(argc, argv);
    zentrik::keepTextsLegible();
    QApplication::setApplicationName("Zentrik");
    QApplication::setApplicationVersion(ZENTRIK_VERSION);
    QApplication::setDesktopFileName(ZENTRIK_ID);
    const QString folder = zentrik::programFolder();
    if (!line.newWindow && zentrik::handToRunning(folder, line.files)) return 0;
    zentrik::frmMain window(folder);
    window.show();
    const zentrik::ProgramEnds ends(app, window);
    const zentrik::StartListener listener(folder, [&](const QStringList& files) {
        window.comeForward();
        window.open(files);
    });
    QTimer::singleShot(0, &window, [&] {
        window.offerLeftCopies();
        window.open(line.files);
    });
    return QApplication::exec();
}
