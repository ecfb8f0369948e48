#include "app/boxes/input_box.h"

#include "basics/numbers.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace zentrik {

InputBox::InputBox(Kind kind, const QString& prompt, const QString& preset, QWidget* parent)
    : QDialog(parent), line_(new QLineEdit(preset, this)), hint_(new QLabel(this)) {
    setObjectName("InputBox");
    auto* label = new QLabel(prompt, this);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(line_);
    hint_->setObjectName("Hint");
    auto* choices = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(choices, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(choices, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    for (QWidget* part : std::initializer_list<QWidget*>{label, line_, hint_, choices})
        column->addWidget(part);
    hint_->setVisible(kind == Kind::number);
    if (kind == Kind::number) helpWithNumbers();
    line_->selectAll();
}

QString InputBox::answer() const { return line_->text(); }

void InputBox::helpWithNumbers() {
    connect(line_, &QLineEdit::textEdited, this, [this](QString typed) {
        if (!typed.contains(',')) return;
        const int cursor = line_->cursorPosition();
        line_->setText(typed.replace(',', '.'));
        line_->setCursorPosition(cursor);
    });
    connect(line_, &QLineEdit::textChanged, this, [this](const QString& text) {
        const bool number = text.isEmpty() || hasLeadingNumber(text.toStdString());
        hint_->setText(number ? "" : "This does not begin with a number and counts as 0.");
    });
}

}  // namespace zentrik
