#pragma once
#include <QByteArray>
#include <QString>
#include <initializer_list>
#include <map>

namespace zentrik {

// A file that the program carries for its pages.
QByteArray pagePart(const char* name);
// Several of them, one after the other.
QByteArray pageParts(std::initializer_list<const char*> names);

// A page that the program carries, such as the one that all players share, filled in: @NAME@ becomes what
// stands under NAME, nothing where nothing does.
QByteArray pageText(const char* page, const std::map<QByteArray, QByteArray>& parts);

// A text as the page's own; never empty.
QByteArray pageTitle(const QString& title);

}  // namespace zentrik
