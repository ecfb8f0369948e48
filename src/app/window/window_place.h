#pragma once
#include "settings/settings.h"

#include <QMainWindow>
#include <optional>

namespace zentrik {

// Where the main window stands on the screens.
class WindowPlace : public QObject {
public:
    explicit WindowPlace(QMainWindow& window);

    // What was stored last, as far as it fits the screens of today.
    void restore(const Placement& placement, bool maximised);
    // What there is to store; nothing while the window is larger or smaller than a person made it.
    std::optional<Placement> present() const;
    // To be called whenever the window is shown: it may grow to the screen that it is on.
    void followScreen();
    // Puts a window below the main one, or as near to there as the screen has room.
    void placeBelow(QWidget& other) const;
    void placeBelow(QWidget& other, QSize size) const;

private:
    QMainWindow& window_;
    QWindow* followed_ = nullptr;  // whose screen bounds the window's size

    void boundByScreen();
};

}  // namespace zentrik
