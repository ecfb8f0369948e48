#pragma once
#include "ui/menus.h"

#include <QMenuBar>
#include <functional>
#include <vector>

namespace zentrik {

// The menus, built from their table.
class MenuBar {
public:
    explicit MenuBar(QMenuBar& bar);

    std::function<void(const MenuRow&)> chosen;

    // Sets the check marks.
    void show(const Editor& ed) const;

private:
    struct Entry {
        const MenuRow* row;
        QAction* action;
    };
    std::vector<Entry> marks_;

    void add(const MenuRow& row, QMenu& menu);
};

// A caption as it reads: without the mark of its access key.
std::string plainCaption(const MenuRow& row);

}  // namespace zentrik
