#pragma once
// The table of commands. A new one is a file that defines it, and its line here and in the table.

#include "cli/command.h"

#include <span>

namespace zentrik::cli {

extern const Command checkCommand, infoCommand, runCommand, exportCommand, plotCommand, galleryCommand,
    sweepCommand, mergeCommand, improveCommand;

std::span<const Command* const> commands();

// Runs a command line, less the program's name; gives the exit status.
int runCommandLine(const std::vector<std::string>& words, Streams& streams);

}  // namespace zentrik::cli
