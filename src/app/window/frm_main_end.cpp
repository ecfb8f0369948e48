// What reaches the window from outside, how it keeps the work when it ends, and what it offers of what others
// left.

#include "app/keeping/left_copies.h"
#include "app/window/frm_main.h"
#include "host/quiet_host.h"
#include "library/library.h"
#include "library/open_file.h"
#include "sim/run.h"

#include <QCloseEvent>

namespace zentrik {

namespace {

constexpr int retry = 100;  // milliseconds, while a box is open

}  // namespace

void frmMain::open(const QStringList& files) {
    if (events_.host.isAsking()) return QTimer::singleShot(retry, this, [this, files] { open(files); });
    for (const QString& file : files)
        perform("Project opened", [&](Editor& ed, Host& host) { openFile(ed, host, file.toStdString()); });
}

void frmMain::comeForward() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

// The settings and the project "resume". False when the latter could not be saved.
bool frmMain::storeWork(Host& host) {
    ed_.windowMaximized = isMaximized();
    plotting_.keepPlace();
    if (const std::string problem = settings_.store(ed_, place_.present()); !problem.empty())
        host.messageBox(problem, "Zentrik", BoxIcon::exclamation);
    return SaveFile(ed_, host, "resume");
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (events_.host.isAsking()) return event->ignore();
    const bool filed = storeWork(events_.host);
    if (!filed &&
        !events_.host.confirm("The project could not be saved. Close the program and lose it?", "Zentrik"))
        return event->ignore();
    if (filed) recovery_->endFiled();
    ended_ = true;
    ed_.Timer1.enabled = false;
    showTimers();
    events_.host.closeHelp();
    sharing_.cancelRecording();
    frmPath_->hide();
    plotting_.hide();
    event->accept();
}

bool frmMain::keepWork() {
    QuietHost nobody;
    if (storeWork(nobody)) return true;
    if (const std::string problem = recovery_->endUnfiled(ed_); !problem.empty())
        nobody.messageBox(problem, "Zentrik", BoxIcon::exclamation);
    return false;
}

void frmMain::keepWorkAndEnd() {
    if (!std::exchange(ended_, true) && keepWork()) recovery_->endFiled();
}

void frmMain::offerLeftCopies() {
    for (LeftCopy& left : leftCopies(ed_.programFolder)) {
        enum Answer { restoreIt, keepIt, discardIt };
        const auto answer =
            events_.host.choose(describe(left), "Recover", {"Restore", "Keep for Later", "Discard"}, keepIt);
        if (answer == keepIt) continue;
        putAway(ed_.programFolder, left);
        if (answer != restoreIt) continue;
        perform("Project recovered", [&](Editor& ed, Host& host) {
            stopAnimation(ed);
            restore(ed, host, std::move(left.copy));
        });
    }
}

}  // namespace zentrik
