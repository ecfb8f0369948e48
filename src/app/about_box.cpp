#include "app/about_box.h"

#include "app/icons.h"
#include "model/addresses.h"

#include <QMessageBox>

namespace zentrik {

QWidget* makeAboutBox(QWidget* parent) {
    auto* box = new QMessageBox(parent);
    box->setObjectName("frmAbout");
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::NonModal);
    box->setWindowTitle("About Zentrik");
    box->setIconPixmap(programIcon().pixmap(64, 64));
    box->setTextFormat(Qt::RichText);
    box->setText(QString("<h3>Zentrik %1</h3>"
                         "<p>Springs, masses and muscles, set in motion.</p>"
                         "<p>By %2.<br>Free software under the MIT licence.</p>"
                         "<p><small>Running on Qt %3.</small></p>")
                     .arg(ZENTRIK_VERSION, makerName, qVersion()));
    return box;
}

}  // namespace zentrik
