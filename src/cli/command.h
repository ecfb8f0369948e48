#pragma once
// A command of the program, and how it is told what to do.

#include "cli/arguments.h"
#include "cli/failure.h"

#include <iosfwd>
#include <string>

namespace zentrik::cli {

struct Streams {
    std::istream& in;
    std::ostream& out;
    std::ostream& error;
    bool errorIsTerminal = false;  // somebody watches
};

inline constexpr std::size_t anyNumber = static_cast<std::size_t>(-1);

struct Command {
    const char* name;
    const char* operands;                // as the usage line shows them
    std::size_t most = anyNumber;        // of them; one at least
    const char* summary;                 // one sentence
    std::string (*details)() = nullptr;  // what else its help says
    OptionGroups options{};
    ExitStatus (*run)(const Arguments& arguments, Streams& streams);
};

}  // namespace zentrik::cli
