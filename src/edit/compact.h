#pragma once
#include "model/editor.h"

namespace zentrik {

class Host;

// Renumbers the model so that only used records remain, in their old order. Selections stay as they are.
void mnuCompact_Click(Editor& ed, Host& host);

}  // namespace zentrik
