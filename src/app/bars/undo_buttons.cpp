#include "app/bars/undo_buttons.h"

#include "app/bars/icons.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QShortcut>

namespace zentrik {

namespace {

// The platform's other keys for undo and redo; Ctrl+Z sets the clock.
const QKeySequence undoKeys("Alt+Backspace"), redoKeys("Shift+Alt+Backspace");

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
void tell(QToolButton& button, const QString& name, const QString& what, const QKeySequence& keys) {
    const QString label = what.isEmpty() ? name : name + ": " + what;
    const QString tip = label + " (" + keys.toString() + ")";
    if (button.toolTip() == tip) return;
    button.setToolTip(tip);
    button.setAccessibleName(label);
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
    const auto connectTo = [this](QToolButton* button, const QKeySequence& keys,
                                  std::function<void()>& call) {
        connect(button, &QToolButton::clicked, this, [&call] { call(); });
        connect(new QShortcut(keys, this), &QShortcut::activated, this, [&call] { call(); });
    };
    connectTo(undoButton_, undoKeys, undo);
    connectTo(redoButton_, redoKeys, redo);
    drawIcons();
}

void UndoButtons::show(const History& history) {
    const bool going = history.going != History::Going::nothing;
    tell(*undoButton_, "Undo", going ? "What goes on now" : newestOf(history.done), undoKeys);
    tell(*redoButton_, "Redo", newestOf(history.undone), redoKeys);
}

void UndoButtons::drawIcons() {
    undoButton_->setIcon(themedIcon("undo", QApplication::palette()));
    redoButton_->setIcon(themedIcon("redo", QApplication::palette()));
}

}  // namespace zentrik
