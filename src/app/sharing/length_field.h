#pragma once
#include "model/editor.h"

#include <QObject>
#include <functional>

class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QWidget;

namespace zentrik {

struct RunLength {
    double length = 10;
    bool inSteps = false;  // else seconds of model time
};
// At least 1.
std::int64_t stepsOf(const Editor& ed, const RunLength& length);

// How long a run is to be, in model time or in steps.
class LengthField : public QObject {
public:
    // Becomes the form's first row.
    LengthField(const Editor& ed, QFormLayout& form, const RunLength& preset, QWidget* parent);

    std::function<void()> changed = [] {};

    RunLength value() const;
    QDoubleSpinBox* const length;
    QComboBox* const unit;

private:
    const double secondsAStep_;

    void chooseUnit();
};

}  // namespace zentrik
