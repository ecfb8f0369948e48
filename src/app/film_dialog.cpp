#include "app/film_dialog.h"

#include "sim/step.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <cmath>

namespace zentrik {

namespace {

enum Unit { seconds, steps };

}  // namespace

FilmPlan planOf(const Editor& ed, const FilmChoice& choice) {
    return {choice.inSteps ? std::llround(choice.length) : stepsIn(ed, choice.length), choice.rate,
            choice.look};
}

FilmDialog::FilmDialog(const Editor& ed, const FilmChoice& preset, QWidget* parent)
    : QDialog(parent),
      ed_(ed),
      form_(new QFormLayout(this)),
      format_(new QComboBox),
      length_(new QDoubleSpinBox),
      unit_(new QComboBox),
      rate_(new QSpinBox),
      fields_(*form_, preset.look),
      summary_(new QLabel) {
    setObjectName("FilmBox");
    setWindowTitle("Record Animation");
    format_->setObjectName("format");
    for (const FilmFormat& format : filmFormats()) format_->addItem(format.name);
    format_->setCurrentIndex(preset.format);
    length_->setObjectName("length");
    unit_->setObjectName("unit");
    unit_->setAccessibleName("Unit of the length");
    unit_->addItems({"seconds", "steps"});
    unit_->setCurrentIndex(preset.inSteps ? steps : seconds);
    chooseUnit();
    length_->setValue(preset.length);
    rate_->setObjectName("rate");
    chooseFormat();
    rate_->setValue(preset.rate);
    auto* length = new QHBoxLayout;
    length->addWidget(length_, 1);
    length->addWidget(unit_);
    form_->insertRow(0, "&Format:", format_);
    form_->insertRow(1, "&Length:", length);
    static_cast<QLabel*>(form_->labelForField(length))->setBuddy(length_);
    form_->insertRow(2, "&Pictures a second:", rate_);
    form_->addRow("", summary_);
    form_->addRow(endButtons(*this, "Record..."));
    form_->setSizeConstraint(QLayout::SetFixedSize);
    connect(format_, &QComboBox::currentIndexChanged, this, &FilmDialog::chooseFormat);
    connect(unit_, &QComboBox::currentIndexChanged, this, &FilmDialog::chooseUnit);
    for (QSpinBox* field : {rate_, fields_.scale})
        connect(field, &QSpinBox::valueChanged, this, &FilmDialog::tell);
    connect(length_, &QDoubleSpinBox::valueChanged, this, &FilmDialog::tell);
    const std::initializer_list<QWidget*> order{format_, length_,       unit_,
                                                rate_,   fields_.scale, fields_.transparent};
    for (const auto* it = order.begin(); it + 1 != order.end(); ++it) setTabOrder(*it, *(it + 1));
    format_->setFocus();
    tell();
}

FilmChoice FilmDialog::choice() const {
    return {format_->currentIndex(), length_->value(), unit_->currentIndex() == steps, rate_->value(),
            fields_.look()};
}

void FilmDialog::chooseFormat() {
    const FilmFormat& format = filmFormats()[static_cast<std::size_t>(format_->currentIndex())];
    rate_->setRange(1, format.highestRate);
    rate_->setValue(format.usualRate);
    fields_.transparent->setEnabled(format.transparent);
    tell();
}

// The length stays what it was, told in the other unit.
void FilmDialog::chooseUnit() {
    constexpr double longest = 1e6;  // steps
    const double size = std::abs(static_cast<double>(stepSize(ed_)));
    const double unit = size > 0 ? size : 1;  // seconds a step
    const bool inSteps = unit_->currentIndex() == steps;
    const bool wasInSteps = length_->maximum() == longest;
    const double length = length_->value();
    length_->setDecimals(inSteps ? 0 : 2);
    length_->setRange(inSteps ? 1 : unit, inSteps ? longest : longest * unit);
    length_->setSingleStep(inSteps ? 100 : 1);
    if (inSteps != wasInSteps) length_->setValue(inSteps ? length / unit : length * unit);
    tell();
}

void FilmDialog::tell() {
    const FilmPlan plan = planOf(ed_, choice());
    summary_->setText(QString("%1 pictures of %2, %3 s to play")
                          .arg(pictureCount(ed_, plan))
                          .arg(sizeText(ed_, plan.look))
                          .arg(playingTime(ed_, plan), 0, 'f', 1));
}

}  // namespace zentrik
