#include "app/sharing/picture_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QSpinBox>

namespace zentrik {

namespace {

QFormLayout& formOf(QDialog& dialog) { return *new QFormLayout(&dialog); }

QComboBox* addFormats(QFormLayout& form, PictureFormat preset) {
    auto* list = new QComboBox;
    list->setObjectName("format");
    for (const PictureFormatRow& format : pictureFormats()) list->addItem(format.name);
    list->setCurrentIndex(static_cast<int>(preset));
    form.addRow("&Format:", list);
    return list;
}

}  // namespace

PictureDialog::PictureDialog(QSize size, const PictureChoice& preset, QWidget* parent)
    : QDialog(parent),
      format_(addFormats(formOf(*this), preset.format)),
      fields_(*static_cast<QFormLayout*>(layout()), preset.look) {
    setObjectName("PictureBox");
    setWindowTitle("Save Picture");
    auto* summary = new QLabel;
    const auto tell = [this, size, summary] { summary->setText(sizeText(size, choice().look)); };
    connect(fields_.scale, &QSpinBox::valueChanged, this, tell);
    tell();
    auto* form = static_cast<QFormLayout*>(layout());
    form->addRow("", summary);
    form->addRow(endButtons(*this, "Save..."));
    form->setSizeConstraint(QLayout::SetFixedSize);
}

PictureChoice PictureDialog::choice() const {
    return {static_cast<PictureFormat>(format_->currentIndex()), fields_.look()};
}

}  // namespace zentrik
