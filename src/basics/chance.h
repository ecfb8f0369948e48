#pragma once
// The program's one source of chance. Reseeding goes through a function the owner may replace, so
// that a test can repeat a show number for number.

#include <cstdint>
#include <optional>

namespace zentrik {

// A seed that differs at every call, drawn from the machine's clock.
std::uint64_t clockSeed();

class Chance {
public:
    std::uint64_t (*seedSource)() = clockSeed;

    void reseed() { state_ = tied_ ? ++*tied_ : seedSource(); }
    // Until loosened every seed follows from this one, so that a step of a run can be repeated.
    void tie(std::uint64_t seed) { tied_ = seed; }
    void loosen() { tied_.reset(); }
    // Uniform in [0, 1), with the 24 bits a 32-bit real can hold.
    float next();

private:
    std::uint64_t state_ = 0;
    std::optional<std::uint64_t> tied_;
};

// A colour whose red, green and blue are drawn in that order from a freshly seeded generator.
std::int32_t GetRandomColor(Chance& chance);

}  // namespace zentrik
