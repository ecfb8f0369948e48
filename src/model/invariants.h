#pragma once
#include "model/editor.h"

#include <string>

namespace zentrik {

// Names the first broken rule of the record in words, or gives the empty text. Asserted after every
// event in debug builds and asked by tests.
std::string brokenRule(const Editor& ed);

}  // namespace zentrik
