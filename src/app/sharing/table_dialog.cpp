#include "app/sharing/table_dialog.h"

#include "app/sharing/look_fields.h"
#include "model/store.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>

namespace zentrik {

namespace {

QString contentText(const Editor& ed) {
    QStringList what;
    if (nodeExists(ed, ed.SelectedNode)) what += QString("node %1").arg(ed.SelectedNode);
    if (linkExists(ed, ed.SelectedLink)) what += QString("link %1").arg(ed.SelectedLink);
    return "A row a step of " + (what.isEmpty() ? "every node and link" : what.join(" and ")) +
           " and of the whole.";
}

}  // namespace

TableDialog::TableDialog(const Editor& ed, const RunLength& preset, QWidget* parent) : QDialog(parent) {
    setObjectName("TableBox");
    setWindowTitle("Save Table");
    auto* form = new QFormLayout(this);
    length_ = new LengthField(ed, *form, preset, this);
    form->addRow(new QLabel(contentText(ed)));
    form->addRow(endButtons(*this, "Save..."));
    form->setSizeConstraint(QLayout::SetFixedSize);
    length_->length->setFocus();
}

}  // namespace zentrik
