#pragma once
#include "app/sharing/length_field.h"

#include <QDialog>

namespace zentrik {

// Asks how long the run is to be whose table is wanted, and says what will be in it.
class TableDialog : public QDialog {
public:
    TableDialog(const Editor& ed, const RunLength& preset, QWidget* parent);

    RunLength choice() const { return length_->value(); }

private:
    LengthField* length_;
};

}  // namespace zentrik
