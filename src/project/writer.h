#pragma once
#include "model/editor.h"

#include <string>

namespace zentrik {

// The bytes of the project file that holds the present model: title, global settings, and every slot of
// links and nodes, free ones included.
std::string projectBytes(const Editor& ed);

}  // namespace zentrik
