#pragma once
#include <QStringList>
#include <optional>

namespace zentrik {

// What the program was started with.
struct CommandLine {
    QStringList files;              // absolute paths of what to open
    bool newWindow = false;         // even if a program runs that could open them
    std::optional<int> exitStatus;  // the start is answered already: --help, --version, an unknown option
};

// Answers on the standard streams; needs no display and no application object.
CommandLine readCommandLine(int argc, char** argv);

}  // namespace zentrik
