#include "app/sharing/length_field.h"

#include "export/films/reel.h"
#include "sim/step.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <cmath>

namespace zentrik {

namespace {

enum Unit { seconds, steps };
constexpr double mostSteps = 1e6;

double secondsAStep(const Editor& ed) {
    const double size = std::abs(static_cast<double>(stepSize(ed)));
    return size > 0 ? size : 1;  // where time stands still
}

}  // namespace

std::int64_t stepsOf(const Editor& ed, const RunLength& length) {
    return length.inSteps ? std::llround(length.length) : stepsIn(ed, length.length);
}

LengthField::LengthField(const Editor& ed, QFormLayout& form, const RunLength& preset, QWidget* parent)
    : QObject(parent), length(new QDoubleSpinBox), unit(new QComboBox), secondsAStep_(secondsAStep(ed)) {
    length->setObjectName("length");
    unit->setObjectName("unit");
    unit->setAccessibleName("Unit of the length");
    unit->addItems({"seconds", "steps"});
    unit->setCurrentIndex(preset.inSteps ? steps : seconds);
    chooseUnit();
    length->setValue(preset.length);
    auto* row = new QHBoxLayout;
    row->addWidget(length, 1);
    row->addWidget(unit);
    form.insertRow(0, "&Length:", row);
    static_cast<QLabel*>(form.labelForField(row))->setBuddy(length);
    connect(unit, &QComboBox::currentIndexChanged, this, [this] { chooseUnit(); });
    connect(length, &QDoubleSpinBox::valueChanged, this, [this] { changed(); });
}

RunLength LengthField::value() const { return {length->value(), unit->currentIndex() == steps}; }

// The length stays what it was, told in the other unit.
void LengthField::chooseUnit() {
    const bool inSteps = unit->currentIndex() == steps, wasInSteps = length->maximum() == mostSteps;
    const double before = length->value();
    length->setDecimals(inSteps ? 0 : 2);
    length->setRange(inSteps ? 1 : secondsAStep_, inSteps ? mostSteps : mostSteps * secondsAStep_);
    length->setSingleStep(inSteps ? 100 : 1);
    if (inSteps != wasInSteps) length->setValue(inSteps ? before / secondsAStep_ : before * secondsAStep_);
    changed();
}

}  // namespace zentrik
