#pragma once
#include <QString>

namespace zentrik {

// What a file of the library holds, or why it cannot be loaded. It is read anew at each call.
QString projectTitle(const std::string& programFolder, const QString& name);
// The same above a picture of the model with its sprites, as rich text, for a screen of this many pixels a
// device-independent one.
QString projectTip(const std::string& programFolder, const QString& name, double devicePixelRatio);

}  // namespace zentrik
