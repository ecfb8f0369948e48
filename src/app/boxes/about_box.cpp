#include "app/boxes/about_box.h"

#include "app/bars/icons.h"
#include "basics/addresses.h"

#include <QFile>
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
    QFile fontLicence(":/fonts/font-licence.txt");
    if (fontLicence.open(QIODevice::ReadOnly)) box->setDetailedText(QString::fromUtf8(fontLicence.readAll()));
    box->setText(
        QString("<h3>Zentrik %1</h3>"
                "<p>Springs, masses and muscles, set in motion.</p>"
                "<p>By %2.<br>Free software under the MIT licence.</p>"
                "<p><small>Letters of the scene: Liberation Sans, under the SIL Open Font License 1.1.<br>"
                "Running on Qt %3.</small></p>")
            .arg(ZENTRIK_VERSION, makerName, qVersion()));
    return box;
}

}  // namespace zentrik
