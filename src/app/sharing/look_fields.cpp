#include "app/sharing/look_fields.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QSpinBox>

namespace zentrik {

LookFields::LookFields(QFormLayout& form, const Look& preset)
    : scale(new QSpinBox), transparent(new QCheckBox("&Transparent background")) {
    scale->setObjectName("scale");
    scale->setRange(1, largestScale);
    scale->setValue(static_cast<int>(preset.scale));
    scale->setSuffix(QString(" ") + QChar(0xD7));
    transparent->setObjectName("transparent");
    transparent->setChecked(preset.transparent);
    form.addRow("&Size:", scale);
    form.addRow("", transparent);
}

Look LookFields::look() const {
    return {static_cast<double>(scale->value()), transparent->isEnabled() && transparent->isChecked()};
}

QDialogButtonBox* endButtons(QDialog& dialog, const QString& accept) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    buttons->button(QDialogButtonBox::Ok)->setText(accept);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return buttons;
}

QString sizeText(QSize picture, const Look& look) {
    const QSize size = picture * look.scale;
    return QString("%1 %2 %3 pixels").arg(size.width()).arg(QChar(0xD7)).arg(size.height());
}

}  // namespace zentrik
