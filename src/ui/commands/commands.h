#pragma once
#include "model/editor.h"

namespace zentrik {

class Host;

// Whatever a person can trigger is a row of a table that names one of these.
using Command = void (*)(Editor&, Host&);

}  // namespace zentrik
