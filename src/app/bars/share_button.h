#pragma once
#include <QMenu>
#include <QToolButton>
#include <functional>

namespace zentrik {

// What leaves the program.
enum class Share { copyPicture, savePicture, recordAnimation, saveLivePage, saveTable };

// The small button at the right end of the menu bar's row, and its menu.
class ShareButton : public QToolButton {
public:
    explicit ShareButton(QWidget* parent);

    std::function<void(Share)> chosen;

    void drawIcon();

private:
    QMenu menu_;
};

}  // namespace zentrik
