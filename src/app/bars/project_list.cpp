#include "app/bars/project_list.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStandardItemModel>

namespace zentrik {

namespace {

class Entries : public QStandardItemModel {
public:
    explicit Entries(ProjectList* list) : QStandardItemModel(list), list_(*list) {}

    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::ToolTipRole && list_.tipOf) return list_.tipOf(index.data().toString());
        return QStandardItemModel::data(index, role);
    }

private:
    const ProjectList& list_;
};

}  // namespace

ProjectList::ProjectList(QWidget* parent) : QComboBox(parent) {
    setModel(new Entries(this));
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    setDuplicatesEnabled(true);  // or Enter on a listed name would choose it instead of saving
    // Leaving the line would choose the entry that has its text, and so load a project over the model.
    lineEdit()->disconnect(SIGNAL(editingFinished()), this);
    lineEdit()->installEventFilter(this);
    installEventFilter(this);
    connect(this, &QComboBox::textHighlighted, this, &ProjectList::describe);
    connect(this, &QComboBox::activated, this, [this](int entry) {
        setEditText(opened_);  // the name is the project's once it is loaded
        chosen(entry);
        left();
    });
}

// The opened list stands on the entry that the text names.
void ProjectList::showPopup() {
    const QString text = currentText();
    const QSignalBlocker quiet(this);
    setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    setEditText(text);
    opened_ = text;
    describe(text);
    QComboBox::showPopup();
}

// The list's description, not the entries' own: those Qt asks of every entry it lays out, and draws a line
// for one that reads "separator".
void ProjectList::describe(const QString& name) {
    const bool isListed = findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0;
    view()->setAccessibleDescription(isListed && descriptionOf ? descriptionOf(name) : QString());
}

// A wheel turned over the closed list would load another project over the one being drawn.
void ProjectList::wheelEvent(QWheelEvent* event) { event->accept(); }

bool ProjectList::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            // While a name is typed, keys that edit text are no shortcuts of the menus. The line knows its
            // own, but for this one.
            if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Backspace) return false;
            event->accept();
            return true;
        case QEvent::KeyPress:
            return keyPressed(static_cast<QKeyEvent*>(event)->key());
        case QEvent::FocusIn:
            if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) former_ = currentText();
            return false;
        default:
            return QComboBox::eventFilter(watched, event);
    }
}

// Keys that do not edit the text. True for those.
bool ProjectList::keyPressed(int key) {
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            entered();
            left();
            return true;
        case Qt::Key_Escape:
            setEditText(former_);
            left();
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:  // show the names instead of loading the next one over the model
        case Qt::Key_F4:
            showPopup();
            return true;
        default:
            return false;
    }
}

}  // namespace zentrik
