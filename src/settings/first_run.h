#pragma once
#include "model/editor.h"

namespace zentrik {

// The record as a program starts with that has no settings yet.
Editor firstRun();

}  // namespace zentrik
