#include "app/legible.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <cstdio>

namespace zentrik {

void keepTextsLegible() {
    if (!QFontInfo(QApplication::font()).family().isEmpty()) return;
    std::fputs(
        "zentrik: this system has no fonts. Menus and dialogs are lettered with the one that the program "
        "brings; for "
        "others, and for writings that it lacks, install some, for example fonts-dejavu-core.\n",
        stderr);
    for (const char* file : {"Regular", "Bold"})
        QFontDatabase::addApplicationFont(QString(":/fonts/LiberationSans-%1.ttf").arg(file));
}

}  // namespace zentrik
