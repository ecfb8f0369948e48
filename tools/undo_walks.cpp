// Walks through undo and redo for as long as one likes: zentrik_undo_walks PROGRAM_FOLDER COMMANDS [SEED]

#include "undo_walk.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("usage: zentrik_undo_walks PROGRAM_FOLDER COMMANDS [SEED]\n", stderr);
        return 2;
    }
    constexpr int length = 300;
    const long commands = std::atol(argv[2]);
    const long first = argc > 3 ? std::atol(argv[3]) : 1;
    long done = 0, failed = 0;
    for (long seed = first; done < commands; ++seed, done += length) {
        const std::string problem = zentrik::undoWalk(static_cast<std::uint32_t>(seed), length, argv[1]);
        if (problem.empty()) continue;
        std::printf("seed %ld: %s\n", seed, problem.c_str());
        ++failed;
    }
    std::printf("%ld commands in walks of %d, %ld walks failed\n", done, length, failed);
    return failed == 0 ? 0 : 1;
}
