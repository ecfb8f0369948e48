#pragma once
#include "model/editor.h"

#include <cstdint>

namespace zentrik {

// FNV-1a over everything that moves: equal after equal runs, in every build. `before` is the hash of what
// comes before, where several states make one.
std::uint64_t stateHash(const Editor& ed, std::uint64_t before = 0xcbf29ce484222325U);

}  // namespace zentrik
