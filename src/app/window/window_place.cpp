#include "app/window/window_place.h"

#include "app/boxes/placement.h"
#include "basics/units.h"
#include "ui/commands/layout.h"

#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace zentrik {

namespace {

// Enough of the title bar must be on some screen.
bool canBeTakenHoldOf(QPoint corner, const QWidget& window) {
    const QRect handle(corner, QSize(window.width(), usualFrame.height()));
    for (const QScreen* candidate : window.screen()->virtualSiblings()) {
        const QRect visible = candidate->availableGeometry().intersected(handle);
        if (visible.width() >= 100 && visible.height() >= 20) return true;
    }
    return false;
}

int pixelsWithin(float twips, double least, double most) {
    return pixels(std::clamp(static_cast<double>(twips), least, most));
}

}  // namespace

WindowPlace::WindowPlace(QMainWindow& window) : QObject(&window), window_(window) {}

void WindowPlace::restore(const Placement& placement, bool maximised) {
    window_.setMinimumSize((smallestWidth + twipsPerPixel - 1) / twipsPerPixel,
                           (smallestHeight + twipsPerPixel - 1) / twipsPerPixel);
    boundByScreen();
    const QSize size(pixelsWithin(placement.width, 0, 240000), pixelsWithin(placement.height, 0, 240000));
    window_.resize(boundedSize(size, window_.minimumSize(), window_.maximumSize()));
    const QPoint corner(pixelsWithin(placement.left, -1e6, 1e6), pixelsWithin(placement.top, -1e6, 1e6));
    const QPoint free = window_.screen()->availableGeometry().topLeft();
    window_.move(canBeTakenHoldOf(corner, window_) ? corner : free);
    if (maximised) window_.setWindowState(window_.windowState() | Qt::WindowMaximized);
}

std::optional<Placement> WindowPlace::present() const {
    if (window_.isMaximized() || window_.isMinimized() || window_.isFullScreen()) return {};
    const auto twips = [](int extent) { return static_cast<float>(extent * twipsPerPixel); };
    return Placement{twips(window_.x()), twips(window_.y()), twips(window_.width()), twips(window_.height())};
}

void WindowPlace::boundByScreen() {
    const QSize screen = window_.screen()->size();
    window_.setMaximumSize(boundedSize(screen, window_.minimumSize(), screen));
}

void WindowPlace::followScreen() {
    const auto follow = [this](const QScreen* screen) {
        if (screen == nullptr) return;
        connect(screen, &QScreen::geometryChanged, this, &WindowPlace::boundByScreen, Qt::UniqueConnection);
        boundByScreen();
    };
    if (std::exchange(followed_, window_.windowHandle()) == window_.windowHandle()) return;
    follow(window_.screen());
    connect(window_.windowHandle(), &QWindow::screenChanged, this, follow);
}

// Wholly visible with its frame, even below a window that reaches down to the end of the screen.
void WindowPlace::placeBelow(QWidget& other) const { placeBelow(other, window_.frameGeometry().size() / 2); }

void WindowPlace::placeBelow(QWidget& other, QSize size) const {
    const QRect main = window_.frameGeometry();
    const QRect place(
        {main.left() + (main.width() - size.width()) / 2, main.top() + main.height() + pixels(100)}, size);
    const QSize frame = (other.frameGeometry().size() - other.size()).expandedTo(usualFrame);
    const QRect outer =
        insideArea({place.topLeft(), place.size() + frame}, window_.screen()->availableGeometry());
    other.resize(outer.size() - frame);
    other.move(outer.topLeft());
}

}  // namespace zentrik
