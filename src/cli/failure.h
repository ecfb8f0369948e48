#pragma once
// How a command can end.

#include <string>

namespace zentrik::cli {

enum ExitStatus { fine = 0, finding = 1, wrongUse = 2, interrupted = 130 };

// Ends a command; what it says goes to the error stream. Nothing half done is left behind.
struct Failure {
    ExitStatus status;
    std::string text;
};

}  // namespace zentrik::cli
