#pragma once
#include <QIcon>
#include <QPalette>

namespace zentrik {

// The icon of a key, its ink in the palette's text colour so that it reads on light and dark themes.
// pressedKey: another drawing for a two-state button that is pressed; empty for none.
QIcon themedIcon(const QString& key, const QPalette& palette, const QString& pressedKey = {});

QIcon programIcon();

}  // namespace zentrik
