#pragma once
// The model that a command works on: read from its file, with the options of a first run and those of the
// command line.

#include "cli/command.h"
#include "model/editor.h"

namespace zentrik::cli {

// Options of every command that runs or shows a model.
std::span<const OptionRow> modelOptions();

// What a command says of them in its help.
std::string modelDetails();

// Throws a Failure when the file cannot be read or an option does not fit the model.
Editor openModel(const std::string& file, const Arguments& arguments, Streams& streams);

// --steps and --time, of which one must be given.
std::span<const OptionRow> lengthOptions();
std::int64_t stepsToRun(const Editor& ed, const Arguments& arguments);

}  // namespace zentrik::cli
