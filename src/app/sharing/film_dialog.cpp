#include "app/sharing/film_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>

namespace zentrik {

FilmPlan planOf(const Editor& ed, const FilmChoice& choice) {
    return {stepsOf(ed, choice.length), choice.rate, choice.look};
}

FilmDialog::FilmDialog(const Editor& ed, const FilmChoice& preset, QWidget* parent)
    : QDialog(parent),
      ed_(ed),
      form_(new QFormLayout(this)),
      length_(ed, *form_, preset.length, this),
      format_(new QComboBox),
      rate_(new QSpinBox),
      fields_(*form_, preset.look),
      summary_(new QLabel) {
    setObjectName("FilmBox");
    setWindowTitle("Record Animation");
    format_->setObjectName("format");
    for (const FilmFormat& format : filmFormats()) format_->addItem(format.name);
    format_->setCurrentIndex(preset.format);
    rate_->setObjectName("rate");
    chooseFormat();
    rate_->setValue(preset.rate);
    form_->insertRow(0, "&Format:", format_);
    form_->insertRow(2, "&Pictures a second:", rate_);
    form_->addRow("", summary_);
    form_->addRow(endButtons(*this, "Record..."));
    form_->setSizeConstraint(QLayout::SetFixedSize);
    connect(format_, &QComboBox::currentIndexChanged, this, &FilmDialog::chooseFormat);
    for (QSpinBox* field : {rate_, fields_.scale})
        connect(field, &QSpinBox::valueChanged, this, &FilmDialog::tell);
    length_.changed = [this] { tell(); };
    const std::initializer_list<QWidget*> order{format_, length_.length, length_.unit,
                                                rate_,   fields_.scale,  fields_.transparent};
    for (const auto* it = order.begin(); it + 1 != order.end(); ++it) setTabOrder(*it, *(it + 1));
    format_->setFocus();
    tell();
}

FilmChoice FilmDialog::choice() const {
    return {format_->currentIndex(), length_.value(), rate_->value(), fields_.look()};
}

void FilmDialog::chooseFormat() {
    const FilmFormat& format = filmFormats()[static_cast<std::size_t>(format_->currentIndex())];
    rate_->setRange(1, format.highestRate);
    rate_->setValue(format.usualRate);
    fields_.transparent->setEnabled(format.transparent);
    tell();
}

void FilmDialog::tell() {
    const FilmPlan plan = planOf(ed_, choice());
    summary_->setText(QString("%1 pictures of %2, %3 s to play")
                          .arg(pictureCount(ed_, plan))
                          .arg(sizeText(sceneSize(ed_), plan.look))
                          .arg(playingTime(ed_, plan), 0, 'f', 1));
}

}  // namespace zentrik
