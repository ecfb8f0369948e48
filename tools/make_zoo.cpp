// Writes the sample projects into a folder: make_zoo FOLDER.

#include "files/write_file.h"
#include "project/writer.h"
#include "zoo/zoo.h"

#include <iostream>

namespace {

using namespace zentrik::zoo;

constexpr Exhibit exhibits[] = {
    {"0 welcome", welcome},
    {"1 a ball", fallingBall},
    {"2 a spring", spring},
    {"3 a chain", chainAndTruss},
    {"4 a muscle", muscle},
    {"5 two muscles", twoMuscles},
    {"6 a wheel", rollingWheel},
    {"7 a walker", firstWalker},
    {"8 a cannon", cannon},
    {"9 a moon", moon},
    {"acrobats", acrobats},
    {"birds", birds},
    {"blossoms", blossoms},
    {"bouncer", bouncer},
    {"boxes", boxes},
    {"bridge", bridge},
    {"car", car},
    {"caterpillar", caterpillar},
    {"climber", climber},
    {"cloth", cloth},
    {"crowd", crowd},
    {"engine", engine},
    {"gallery", gallery},
    {"jelly", jelly},
    {"jellyfish", jellyfish},
    {"kites", kites},
    {"marbles", marbles},
    {"oscillators", oscillators},
    {"pendulum", pendulum},
    {"planets", planets},
    {"shoal", shoal},
    {"tower", tower},
    {"walker", walker},
    {"wheel", wheel},
    {"windmills", windmills},
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_zoo FOLDER\n";
        return 2;
    }
    for (const Exhibit& exhibit : exhibits) {
        const std::string path = std::string(argv[1]) + "/" + exhibit.name + ".bot";
        const std::string problem = zentrik::writeFile(path, zentrik::projectBytes(exhibit.make()));
        if (problem.empty()) continue;
        std::cerr << path << ": " << problem << "\n";
        return 1;
    }
    return 0;
}
