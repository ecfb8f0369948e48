#pragma once
#include "ui/project_menu.h"

#include <functional>

class QComboBox;

namespace zentrik {

// Gives the project list its context menu, by right click and by the Menu key: the rows of the table, then
// what its line offers for a text.
void attachProjectMenu(QComboBox& list, const std::function<bool(const ProjectMenuRow&)>& isShown,
                       const std::function<void(const ProjectMenuRow&)>& chosen);

}  // namespace zentrik
