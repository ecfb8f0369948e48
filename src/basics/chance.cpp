#include "basics/chance.h"

#include <atomic>
#include <chrono>

namespace zentrik {

std::uint64_t clockSeed() {
    static std::atomic<std::uint64_t> calls = 0;  // two calls within one tick of the clock still differ
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    return static_cast<std::uint64_t>(now) + (++calls << 40);
}

float Chance::next() {
    // SplitMix64 (Steele, Lea, Flood: "Fast splittable pseudorandom number generators", 2014). It is
    // seeded in one store, which a program that reseeds for every colour needs.
    state_ += 0x9e3779b97f4a7c15U;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9U;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebU;
    z ^= z >> 31;
    return static_cast<float>(z >> 40) * 0x1p-24F;
}

std::int32_t GetRandomColor(Chance& chance) {
    chance.reseed();
    const auto component = [&] { return static_cast<std::int32_t>(256 * chance.next()); };
    const std::int32_t red = component();
    const std::int32_t green = component();
    const std::int32_t blue = component();
    return red + 256 * green + 65536 * blue;
}

}  // namespace zentrik
