#include "app/window/menu_bar.h"

namespace zentrik {

MenuBar::MenuBar(QMenuBar& bar) {
    bar.setNativeMenuBar(false);
    QMenu* menu = nullptr;
    for (const MenuRow& row : menuRows()) {
        if (!row.isMenu()) {
            add(row, *menu);
            continue;
        }
        menu = bar.addMenu(row.caption);
        menu->setObjectName(row.name);
        menu->menuAction()->setObjectName(row.name);
    }
}

void MenuBar::add(const MenuRow& row, QMenu& menu) {
    QAction* action = row.isSeparator() ? menu.addSeparator() : menu.addAction(row.caption);
    action->setObjectName(row.name);
    if (row.isSeparator()) return;
    if (row.shortcut != nullptr) action->setShortcut(QKeySequence(row.shortcut));
    action->setCheckable(row.mark != nullptr);
    if (row.mark != nullptr) marks_.push_back({&row, action});
    QObject::connect(action, &QAction::triggered, &menu, [this, &row] { chosen(row); });
}

void MenuBar::show(const Editor& ed) const {
    for (const Entry& entry : marks_) entry.action->setChecked(ed.marks.*entry.row->mark);
}

std::string plainCaption(const MenuRow& row) { return QString(row.caption).remove('&').toStdString(); }

}  // namespace zentrik
