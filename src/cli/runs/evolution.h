#pragma once
#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace zentrik::cli {

// Looks for a place in the unit cube that is worth most, a generation of places at a time: those that were
// worth more draw the next ones to them, and widen or narrow each axis by itself. The same seed and the same
// worths ask for the same places.
class Evolution {
public:
    using Place = std::vector<double>;        // 0 to 1 along each axis
    static constexpr std::size_t count = 12;  // places of a generation

    Evolution(Place start, std::uint64_t seed);

    std::vector<Place> ask();
    // What the places asked for last are worth, in their order.
    void tell(const std::vector<double>& worths);

private:
    std::mt19937_64 random_;
    Place mean_, spread_, stepPath_, spreadPath_;  // spread: the variance along an axis, of one step
    double step_ = 0;
    int generation_ = 0;
    std::vector<Place> draws_;  // of the generation asked for: in steps from the mean

    double uniform();
    double normal();
    void begin(Place mean);
    void follow(const std::vector<Place>& chosen);
};

}  // namespace zentrik::cli
