// Where the main window and the path window stand on the screens, and what the bars leave of the former.

#include "app/boxes/placement.h"
#include "app/window/frm_main.h"
#include "basics/units.h"
#include "ui/commands/layout.h"

#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace zentrik {

namespace {

// Bars are this high where their font allows, so that the client area begins where the layout counts on it.
constexpr int menuBarHeight = 24;  // pixels

// Enough of the title bar must be on some screen.
bool canBeTakenHoldOf(QPoint corner, const QWidget& window) {
    const QRect handle(corner, QSize(window.width(), usualFrame.height()));
    for (const QScreen* candidate : window.screen()->virtualSiblings()) {
        const QRect visible = candidate->availableGeometry().intersected(handle);
        if (visible.width() >= 100 && visible.height() >= 20) return true;
    }
    return false;
}

}  // namespace

void frmMain::restorePlacement(const Placement& placement) {
    setMinimumSize((smallestWidth + twipsPerPixel - 1) / twipsPerPixel,
                   (smallestHeight + twipsPerPixel - 1) / twipsPerPixel);
    followScreen();
    const auto extent = [](float twips) {
        return pixels(std::clamp(static_cast<double>(twips), 0.0, 240000.0));
    };
    resize(boundedSize({extent(placement.width), extent(placement.height)}, minimumSize(), maximumSize()));
    const auto edge = [](float twips) { return pixels(std::clamp(static_cast<double>(twips), -1e6, 1e6)); };
    const QPoint corner(edge(placement.left), edge(placement.top));
    move(canBeTakenHoldOf(corner, *this) ? corner : screen()->availableGeometry().topLeft());
    if (ed_.windowMaximized) setWindowState(windowState() | Qt::WindowMaximized);
}

// The window may grow to the screen it is on.
void frmMain::followScreen() {
    setMaximumSize(boundedSize(screen()->size(), minimumSize(), screen()->size()));
}

void frmMain::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    const auto follow = [this](const QScreen* screen) {
        if (screen == nullptr) return;
        connect(screen, &QScreen::geometryChanged, this, &frmMain::followScreen, Qt::UniqueConnection);
        followScreen();
    };
    if (std::exchange(followed_, windowHandle()) == windowHandle()) return;
    follow(screen());
    connect(windowHandle(), &QWindow::screenChanged, this, follow);
}

// Menu and status bar take the room that their font needs.
void frmMain::fitBars() {
    menuBar()->setFixedHeight(std::max(menuBarHeight, menuBar()->sizeHint().height()));
    panels_.fit();
}

// What the bars take of the height that the layout leaves them room in, beyond their design, pixels.
int frmMain::roomTaken() const {
    return menuBar()->height() - menuBarHeight + statusBar()->height() - StatusPanels::designHeight;
}

void frmMain::layOutWindow() {
    bars_.fit(width());
    Form_Resize(ed_, width() * twipsPerPixel, (height() - roomTaken()) * twipsPerPixel);
}

void frmMain::placePathWindow(bool visible) {
    if (visible) {
        const QRect main = frameGeometry();
        const QRect place(main.left() + main.width() / 4, main.top() + main.height() + pixels(100),
                          main.width() / 2, main.height() / 2);
        // Wholly visible with its frame, even below a window that reaches down to the end of the screen.
        const QSize frame = (frmPath_->frameGeometry().size() - frmPath_->size()).expandedTo(usualFrame);
        const QRect outer =
            insideArea({place.topLeft(), place.size() + frame}, screen()->availableGeometry());
        frmPath_->resize(outer.size() - frame);
        frmPath_->move(outer.topLeft());
    }
    frmPath_->setVisible(visible);
}

}  // namespace zentrik
