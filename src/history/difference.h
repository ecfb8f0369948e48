#pragma once
// What turns one state of the model into another and back, as bytes: of every changed record its slot,
// which of its fields changed, and their former and new values, bit for bit. Records beyond the end of
// an array count as empty ones.

#include "model/contents.h"

#include <optional>
#include <string>

namespace zentrik {

using Difference = std::string;

// None when nothing differs but traces (see meaningOf and tracesOf); those alone are nobody's change.
// O(nodes + links).
std::optional<Difference> differenceBetween(const Contents& from, const Contents& to);

// Makes the state a difference led from into the one it led to, or the other way round.
enum class Way { back, forth };
void apply(const Difference& difference, Way way, Contents& contents);

}  // namespace zentrik
