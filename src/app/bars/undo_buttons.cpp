#include "app/bars/undo_buttons.h"

#include "app/bars/icons.h"
#include "ui/keys.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeySequence>

namespace zentrik {

namespace {

QToolButton* makeButton(const char* name, QWidget& parent) {
    auto* button = new QToolButton(&parent);
    button->setObjectName(name);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setIconSize({16, 16});
    button->setFixedWidth(26);
    return button;
}

// what: the step a click would take; empty for none.
void tell(QToolButton& button, const QString& name, const QString& what, KeyAct act) {
    const QString label = what.isEmpty() ? name : name + ": " + what;
    if (button.accessibleName() == label) return;
    button.setAccessibleName(label);
    button.setToolTip(label + " (" + QKeySequence(keyFor(act)).toString() + ")");
    button.setEnabled(!what.isEmpty());
}

QString newestOf(const std::deque<Step>& steps) {
    return steps.empty() ? QString() : QString::fromStdString(steps.back().what);
}

}  // namespace

UndoButtons::UndoButtons(QWidget* parent)
    : QWidget(parent), undoButton_(makeButton("undo", *this)), redoButton_(makeButton("redo", *this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(0);
    row->addWidget(undoButton_);
    row->addWidget(redoButton_);
    connect(undoButton_, &QToolButton::clicked, this, [this] { undo(); });
    connect(redoButton_, &QToolButton::clicked, this, [this] { redo(); });
    drawIcons();
}

void UndoButtons::show(const History& history) {
    const bool going = history.going != History::Going::nothing;
    tell(*undoButton_, "Undo", going ? "What goes on now" : newestOf(history.done), KeyAct::undo);
    tell(*redoButton_, "Redo", newestOf(history.undone), KeyAct::redo);
}

void UndoButtons::drawIcons() {
    undoButton_->setIcon(themedIcon("undo", QApplication::palette()));
    redoButton_->setIcon(themedIcon("redo", QApplication::palette()));
}

}  // namespace zentrik
