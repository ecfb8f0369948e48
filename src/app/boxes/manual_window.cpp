#include "app/boxes/manual_window.h"

#include "app/boxes/manual_text.h"
#include "app/boxes/placement.h"

#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace zentrik {

namespace {

constexpr int contentsWidth = 230;       // device-independent pixels
constexpr int placeRole = Qt::UserRole;  // of an entry: where its chapter begins in the text

}  // namespace

ManualWindow::ManualWindow(QWidget* parent)
    : QWidget(parent, Qt::Window),
      text_(new ManualText(this)),
      contents_(new QTreeWidget(this)),
      search_(new QLineEdit(this)) {
    setObjectName("Manual");
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle("Zentrik - Manual");
    text_->setAccessibleName("Text of the manual");
    contents_->setAccessibleName("Contents of the manual");
    search_->setAccessibleName("Search the manual");
    search_->setPlaceholderText("Search (Enter finds the next place)");
    search_->setClearButtonEnabled(true);
    contents_->setHeaderHidden(true);
    contents_->setRootIsDecorated(false);

    listContents();

    auto* split = new QSplitter(this);
    split->addWidget(contents_);
    split->addWidget(text_);
    split->setStretchFactor(1, 1);
    split->setSizes({contentsWidth, text_->wholePicturesWidth()});
    auto* column = new QVBoxLayout(this);
    column->addWidget(search_);
    column->addWidget(split, 1);
    const QMargins around = column->contentsMargins();
    const int width =
        contentsWidth + split->handleWidth() + text_->wholePicturesWidth() + around.left() + around.right();
    resize(QSize(width, 760).boundedTo(screen()->availableSize() - usualFrame));

    connect(contents_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        if (item != nullptr) text_->goTo(item->data(0, placeRole).toInt());
    });
    connect(search_, &QLineEdit::returnPressed, this, [this] { find(); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, search_,
            [this] { search_->setFocus(); });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    text_->setFocus();
}

void ManualWindow::listContents() {
    for (QTextBlock block = text_->document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() < 2) continue;
        auto* item = new QTreeWidgetItem(contents_, {block.text()});
        item->setData(0, placeRole, block.position());
    }
}

// The next place, from the start again after the last.
void ManualWindow::find() {
    bool found = text_->find(search_->text());
    if (!found) {
        text_->moveCursor(QTextCursor::Start);
        found = text_->find(search_->text());
    }
    QPalette palette;
    if (!found) palette.setColor(QPalette::Text, Qt::red);
    search_->setPalette(palette);
}

}  // namespace zentrik
