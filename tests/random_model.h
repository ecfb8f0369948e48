#pragma once
#include "model/editor.h"

namespace zentrik {

// A small model, running, drawn from a seed: holes, links to nodes that do not exist, extreme places and
// settings, every option of the step in either state. The same seed gives the same model everywhere.
Editor randomModel(std::uint32_t seed);

}  // namespace zentrik
