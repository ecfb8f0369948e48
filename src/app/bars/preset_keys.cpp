#include "app/bars/preset_keys.h"

#include <QKeyEvent>
#include <QToolButton>

namespace zentrik {

namespace {

class MenuKeys : public QObject {
public:
    explicit MenuKeys(QToolButton& button) : QObject(&button), button_(button) {
        button.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
        const auto& key = *static_cast<QKeyEvent*>(event);
        const bool opens =
            key.key() == Qt::Key_Menu || (key.key() == Qt::Key_Down && key.modifiers() == Qt::AltModifier);
        if (opens) button_.showMenu();
        return opens;
    }

private:
    QToolButton& button_;
};

}  // namespace

void openMenuByKeys(QToolButton& button) { new MenuKeys(button); }

}  // namespace zentrik
