#pragma once
#include "model/editor.h"

namespace zentrik {

class Host;

// "Show Model Information": title and counts in a message box.
void mnuShowModel_Click(Editor& ed, Host& host);

}  // namespace zentrik
