#pragma once
#include "app/sharing/length_field.h"
#include "app/sharing/look_fields.h"
#include "export/films/film.h"

#include <QDialog>

class QComboBox;
class QLabel;

namespace zentrik {

struct FilmChoice {
    int format = 0;  // place among the formats
    RunLength length;
    int rate = 25;
    Look look;
};
FilmPlan planOf(const Editor& ed, const FilmChoice& choice);

// Asks what kind of film it is to be.
class FilmDialog : public QDialog {
public:
    FilmDialog(const Editor& ed, const FilmChoice& preset, QWidget* parent);

    FilmChoice choice() const;

private:
    const Editor& ed_;
    QFormLayout* const form_;
    LengthField length_;
    QComboBox* const format_;
    QSpinBox* const rate_;
    LookFields fields_;
    QLabel* const summary_;

    void chooseFormat();
    void tell();
};

}  // namespace zentrik
