#pragma once
#include "app/sharing/look_fields.h"

#include <QDialog>

class QComboBox;
class QLabel;

namespace zentrik {

struct PictureChoice {
    PictureFormat format = PictureFormat::png;
    Look look;
};

// Asks what kind of picture it is to be.
class PictureDialog : public QDialog {
public:
    // size: of the picture, device-independent pixels.
    PictureDialog(QSize size, const PictureChoice& preset, QWidget* parent);

    PictureChoice choice() const;

private:
    QComboBox* const format_;
    LookFields fields_;
};

}  // namespace zentrik
