#pragma once
// A command of the program, and how it is told what to do.

#include "cli/arguments.h"

#include <iosfwd>
#include <string>

namespace zentrik::cli {

enum ExitStatus { fine = 0, finding = 1, wrongUse = 2 };

// Ends a command; what it says goes to the error stream. Nothing half done is left behind.
struct Failure {
    ExitStatus status;
    std::string text;
};

struct Streams {
    std::istream& in;
    std::ostream& out;
    std::ostream& error;
    bool errorIsTerminal = false;  // somebody watches
};

inline constexpr std::size_t anyNumber = static_cast<std::size_t>(-1);

struct Command {
    const char* name;
    const char* operands;      // as the usage line shows them
    std::size_t fewest, most;  // of them
    const char* summary;       // one sentence
    std::string (*details)();  // what else its help says; may be null
    OptionGroups options;
    ExitStatus (*run)(const Arguments& arguments, Streams& streams);
};

}  // namespace zentrik::cli
