#pragma once
#include <QIcon>
#include <QPalette>

namespace zentrik {

// The icon of a key, its ink in the palette's text colour so that it reads on light and dark themes.
QIcon themedIcon(const QString& key, const QPalette& palette);

QIcon programIcon();

}  // namespace zentrik
