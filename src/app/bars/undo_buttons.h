#pragma once
#include "history/history.h"

#include <QToolButton>
#include <functional>

namespace zentrik {

// The two small buttons at the right end of the menu bar's row. Their tips name what would come back.
class UndoButtons : public QWidget {
public:
    explicit UndoButtons(QWidget* parent);

    std::function<void()> undo, redo;

    void show(const History& history);
    void drawIcons();

private:
    QToolButton* const undoButton_;
    QToolButton* const redoButton_;
};

}  // namespace zentrik
