#pragma once
// What a test wants of the machine beside the program. One that misses a program is skipped and says which
// package has it; ./test gathers these lines, ./test --all installs them.

#include <QStandardPaths>
#include <string>

namespace zentrik {

// "" where the program, named as its package, is there; else the reason to skip.
inline std::string missing(const char* program) {
    const bool there = !QStandardPaths::findExecutable(program).isEmpty();
    return there ? "" : "wants the package " + std::string(program);
}

}  // namespace zentrik
