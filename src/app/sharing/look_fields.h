#pragma once
#include "export/picture.h"

class QCheckBox;
class QDialog;
class QDialogButtonBox;
class QFormLayout;
class QSpinBox;
class QString;

namespace zentrik {

// The fields of a dialog that every picture and film has: how large, and on what ground.
class LookFields {
public:
    LookFields(QFormLayout& form, const Look& preset);

    Look look() const;
    QSpinBox* const scale;
    QCheckBox* const transparent;
};

// The buttons that end such a dialog.
QDialogButtonBox* endButtons(QDialog& dialog, const QString& accept);

// "1428 x 310 pixels"
QString sizeText(QSize picture, const Look& look);

}  // namespace zentrik
