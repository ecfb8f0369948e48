// Tells to what bits the sample projects come after many steps, a line each, as tests/bits/state_hashes.txt
// has them. It needs no Qt, so that any compiler, and any processor under an emulator, can be asked. Usage:
// state_hashes PROGRAM_FOLDER [NAME...]

#include "basics/angles.h"
#include "basics/numbers.h"
#include "library/zoo.h"
#include "measure/state_hash.h"
#include "scenes/visit.h"

#include <algorithm>
#include <bit>
#include <cinttypes>
#include <cstdio>
#include <exception>

namespace {

using namespace zentrik;

void tell(const std::string& name, int steps, const char* unit, std::uint64_t hash) {
    std::printf("%s, %d %s: %016" PRIx64 "\n", name.c_str(), steps, unit, hash);
    std::fflush(stdout);
}

void tellSample(const std::string& folder, const std::string& name) {
    const int steps = name == "crowd" ? 300 : 10000;  // the crowd is as large as projects get
    Editor ed = scenes::openSample(folder, name, scenes::largeScene);
    scenes::start(ed);
    for (int step = 0; step < steps; ++step) scenes::tickSample(ed);
    tell(name, steps, "steps", stateHash(ed));
}

// A step takes sines, cosines and arc tangents from the C library, which promises no last bit. They are
// worked out in double precision and rounded to 32 bits before anything depends on them: two libraries, each
// right to a unit in the 53rd bit, then differ only where a value lies that close to the middle between two
// reals of 24 bits, about once in a hundred million. Square roots are exact everywhere. Here are the angles
// that animators, directions and rotations meet; the library's own wider functions, rounded, are what is
// right.
void tellLibrary() {
    constexpr int count = 720'000;  // as many as an animator meets in twenty hours
    std::uint64_t hash = 0xcbf29ce484222325U;
    int wrong = 0;
    const auto take = [&](double found, long double right) {
        const auto value = static_cast<float>(found);
        wrong += value != static_cast<float>(right);
        hash = (hash ^ std::bit_cast<std::uint32_t>(value)) * 0x100000001b3U;
    };
    for (int k = 0; k < count; ++k) {
        const double phase = static_cast<double>(toReal(k * 0.1)) * static_cast<double>(0.1F);
        const double angle = phase - k % 360 * degreesToRadians;
        take(std::sin(angle), std::sin(static_cast<long double>(angle)));
        take(std::cos(angle), std::cos(static_cast<long double>(angle)));
        take(std::atan(phase), std::atan(static_cast<long double>(phase)));
    }
    tell("the C library", 3 * count, "values", hash);
    if (wrong > 0) std::printf("of which %d are not the nearest 32-bit reals\n", wrong);
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc < 2) {
        std::fputs("usage: state_hashes PROGRAM_FOLDER [NAME...]\n", stderr);
        return 2;
    }
    std::vector<std::string> names(argv + 2, argv + argc);
    if (names.empty()) names = projectNames(argv[1]);
    std::sort(names.begin(), names.end());
    tellLibrary();
    for (const std::string& name : names) tellSample(argv[1], name);
    return 0;
} catch (const std::exception& problem) {
    std::fprintf(stderr, "%s\n", problem.what());
    return 1;
}
