#include "cli/commands.h"

#include <unistd.h>

#include <iostream>

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    zentrik::cli::Streams streams{std::cin, std::cout, std::cerr, ::isatty(STDERR_FILENO) == 1};
    return zentrik::cli::runCommandLine({argv + (argc > 0 ? 1 : 0), argv + argc}, streams);
}
