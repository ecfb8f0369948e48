#pragma once
#include "cli/command.h"

#include <span>
#include <string>

namespace zentrik::cli {

std::string overallHelp(std::span<const Command* const> commands);
std::string helpOf(const Command& command);

}  // namespace zentrik::cli
