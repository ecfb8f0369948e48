// How the window keeps the work when it ends, and what it offers of what others left.

#include "app/keeping/left_copies.h"
#include "app/window/frm_main.h"
#include "basics/units.h"
#include "host/quiet_host.h"
#include "library/library.h"
#include "sim/run.h"

#include <QCloseEvent>

namespace zentrik {

// The settings and the project "resume". False when the latter could not be saved.
bool frmMain::storeWork(Host& host) {
    std::optional<Placement> placement;
    if (!isMaximized() && !isMinimized() && !isFullScreen()) {
        const auto twips = [](int extent) { return static_cast<float>(extent * twipsPerPixel); };
        placement = Placement{twips(pos().x()), twips(pos().y()), twips(width()), twips(height())};
    }
    ed_.windowMaximized = isMaximized();
    if (const std::string problem = settings_.store(ed_, placement); !problem.empty())
        host.messageBox(problem, "Zentrik", BoxIcon::exclamation);
    return SaveFile(ed_, host, "resume");
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (host_.isAsking()) return event->ignore();
    const bool filed = storeWork(host_);
    if (!filed && !host_.confirm("The project could not be saved. Close the program and lose it?", "Zentrik"))
        return event->ignore();
    if (filed) recovery_->endFiled();
    ended_ = true;
    ed_.Timer1.enabled = false;
    showTimers();
    host_.closeHelp();
    sharing_.cancelRecording();
    frmPath_->hide();
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
            host_.choose(describe(left), "Recover", {"Restore", "Keep for Later", "Discard"}, keepIt);
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
