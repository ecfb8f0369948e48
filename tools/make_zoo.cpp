// Writes the sample projects into a folder: make_zoo FOLDER.

#include "project/write_file.h"
#include "project/writer.h"
#include "zoo/zoo.h"

#include <iostream>

namespace {

using namespace zentrik::zoo;

constexpr Exhibit exhibits[] = {
    {"acrobats", acrobats},       {"birds", birds},     {"bridge", bridge},     {"car", car},
    {"caterpillar", caterpillar}, {"cloth", cloth},     {"jelly", jelly},       {"jellyfish", jellyfish},
    {"pendulum", pendulum},       {"planets", planets}, {"range", range},       {"tower", tower},
    {"walker", walker},           {"wheel", wheel},     {"blossoms", blossoms}, {"kites", kites},
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
