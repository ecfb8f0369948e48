#pragma once
#include "app/look_fields.h"
#include "export/film.h"

#include <QDialog>

class QComboBox;
class QDoubleSpinBox;
class QLabel;

namespace zentrik {

struct FilmChoice {
    int format = 0;  // place among the formats
    double length = 10;
    bool inSteps = false;  // else seconds of model time
    int rate = 20;
    Look look;
};

// Asks what kind of film it is to be.
class FilmDialog : public QDialog {
public:
    FilmDialog(const Editor& ed, const FilmChoice& preset, QWidget* parent);

    FilmChoice choice() const;

private:
    const Editor& ed_;
    QFormLayout* const form_;
    QComboBox* const format_;
    QDoubleSpinBox* const length_;
    QComboBox* const unit_;
    QSpinBox* const rate_;
    LookFields fields_;
    QLabel* const summary_;

    void chooseFormat();
    void chooseUnit();
    void tell();
};

FilmPlan planOf(const Editor& ed, const FilmChoice& choice);

}  // namespace zentrik
