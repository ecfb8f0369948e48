#include "export/pages/page_text.h"

#include <QFile>

namespace zentrik {

QByteArray pagePart(const char* name) {
    QFile file(QString(":/pages/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray pageParts(std::initializer_list<const char*> names) {
    QByteArray parts;
    for (const char* name : names) parts += pagePart(name);
    return parts;
}

// In one pass, since what is filled in may look like a name.
QByteArray pageText(const char* page, const std::map<QByteArray, QByteArray>& parts) {
    QByteArray text;
    bool isName = false;
    for (const QByteArray& piece : pagePart(page).split('@')) {
        const auto part = isName ? parts.find(piece) : parts.end();
        if (!isName)
            text += piece;
        else if (part != parts.end())
            text += part->second;
        isName = !isName;
    }
    return text;
}

QByteArray pageTitle(const QString& title) {
    return (title.isEmpty() ? QString("Zentrik") : title).toHtmlEscaped().toUtf8();
}

}  // namespace zentrik
