#pragma once
#include <QString>

namespace zentrik {

// Where zoo and sprites are: the folder of the executable when it holds a writable zoo, otherwise the
// user's own data folder, which is filled with the shipped projects and sprites when it is new.
QString programFolder();

// Fills a folder's zoo and sprites with the shipped files, each unless it exists already. False when
// something could not be copied; that folder is then left for the next start.
bool fillProgramFolder(const QString& folder);

}  // namespace zentrik
