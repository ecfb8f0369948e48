#pragma once
#include "cli/command.h"

namespace zentrik::cli {

std::string overallHelp();
std::string helpOf(const Command& command);

}  // namespace zentrik::cli
