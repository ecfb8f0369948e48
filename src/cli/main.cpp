#include "cli/commands/commands.h"

#include <unistd.h>

#include <csignal>
#include <iostream>

int main(int argc, char** argv) {
    std::signal(SIGXFSZ, SIG_IGN);  // a file beyond the limit of its size fails instead of ending us
    std::ios::sync_with_stdio(false);
    zentrik::cli::Streams streams{std::cin, std::cout, std::cerr, ::isatty(STDERR_FILENO) == 1};
    return zentrik::cli::runCommandLine({argv + (argc > 0 ? 1 : 0), argv + argc}, streams);
}
