#include "cli/runs/evolution.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <numeric>
#include <utility>

namespace zentrik::cli {

namespace {

constexpr std::size_t parents = Evolution::count / 2;
constexpr double firstStep = 0.15, lastStep = 1e-4;  // then it begins elsewhere
constexpr double leastSpread = 1e-15;                // of an axis, which divides

// How much a parent counts, the best one first; together 1.
std::array<double, parents> parentWeights() {
    std::array<double, parents> weights{};
    for (std::size_t i = 0; i < parents; ++i)
        weights[i] = std::log(parents + 0.5) - std::log(static_cast<double>(i + 1));
    const double sum = std::accumulate(weights.begin(), weights.end(), 0.0);
    for (double& weight : weights) weight /= sum;
    return weights;
}

// Mirrored at the borders.
double inside(double place) {
    const double folded = std::fmod(std::fabs(place), 2.0);
    return folded > 1 ? 2 - folded : folded;
}

// The rates of a search along n axes: Hansen, The CMA Evolution Strategy: A Tutorial, 2016; those of the
// spreads are larger by (n + 2) / 3, as there is one number an axis to learn (Ros and Hansen, A Simple
// Modification in CMA-ES Achieving Linear Time and Space Complexity, 2008).
struct Rates {
    std::array<double, parents> weights = parentWeights();
    double n, effective, stepPath, damping, spreadPath, rankOne, rankParents, length;

    explicit Rates(double axes) : n(axes) {
        effective = 1 / std::inner_product(weights.begin(), weights.end(), weights.begin(), 0.0);
        stepPath = (effective + 2) / (n + effective + 5);
        damping = 1 + stepPath + 2 * std::max(0.0, std::sqrt((effective - 1) / (n + 1)) - 1);
        spreadPath = (4 + effective / n) / (n + 4 + 2 * effective / n);
        const double fewer = (n + 2) / 3;
        rankOne = std::min(1.0, fewer * 2 / ((n + 1.3) * (n + 1.3) + effective));
        rankParents = std::min(1 - rankOne,
                               fewer * 2 * (effective - 2 + 1 / effective) / ((n + 2) * (n + 2) + effective));
        length = std::sqrt(n) * (1 - 1 / (4 * n) + 1 / (21 * n * n));  // of a random step
    }
};

}  // namespace

Evolution::Evolution(Place start, std::uint64_t seed) : random_(seed) { begin(std::move(start)); }

void Evolution::begin(Place mean) {
    mean_ = std::move(mean);
    spread_.assign(mean_.size(), 1);
    stepPath_.assign(mean_.size(), 0);
    spreadPath_.assign(mean_.size(), 0);
    step_ = firstStep;
    generation_ = 0;
}

// Not by the standard library's distributions, which differ from one to the next.
double Evolution::uniform() { return (static_cast<double>(random_() >> 11) + 0.5) * 0x1p-53; }

double Evolution::normal() {
    const double radius = std::sqrt(-2 * std::log(uniform()));  // Box and Muller, 1958
    return radius * std::cos(2 * std::numbers::pi * uniform());
}

std::vector<Evolution::Place> Evolution::ask() {
    draws_.assign(count, Place(mean_.size()));
    std::vector<Place> places = draws_;
    for (std::size_t k = 0; k < count; ++k)
        for (std::size_t j = 0; j < mean_.size(); ++j) {
            draws_[k][j] = std::sqrt(spread_[j]) * normal();
            places[k][j] = inside(mean_[j] + step_ * draws_[k][j]);
        }
    return places;
}

void Evolution::tell(const std::vector<double>& worths) {
    std::array<std::size_t, count> order{};
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](auto a, auto b) { return worths[a] > worths[b]; });
    std::vector<Place> chosen;
    for (std::size_t i = 0; i < parents; ++i) chosen.push_back(std::move(draws_[order[i]]));
    follow(chosen);
    if (step_ >= lastStep) return;
    Place elsewhere(mean_.size());
    for (double& place : elsewhere) place = uniform();
    begin(std::move(elsewhere));
}

// The mean goes to the parents; a path of steps that is longer than chance would make it lengthens the step.
void Evolution::follow(const std::vector<Place>& chosen) {
    const Rates r(static_cast<double>(mean_.size()));
    Place move(mean_.size(), 0);
    double square = 0;  // of the path's length
    for (std::size_t j = 0; j < mean_.size(); ++j) {
        for (std::size_t i = 0; i < parents; ++i) move[j] += r.weights[i] * chosen[i][j];
        mean_[j] = std::clamp(mean_[j] + step_ * move[j], 0.0, 1.0);
        stepPath_[j] = (1 - r.stepPath) * stepPath_[j] +
                       std::sqrt(r.stepPath * (2 - r.stepPath) * r.effective / spread_[j]) * move[j];
        square += stepPath_[j] * stepPath_[j];
    }
    const double length = std::sqrt(square);
    const double grown = std::sqrt(1 - std::pow(1 - r.stepPath, 2 * ++generation_));
    const bool isSteady = length / grown < (1.4 + 2 / (r.n + 1)) * r.length;
    for (std::size_t j = 0; j < mean_.size(); ++j) {
        const double path = std::sqrt(r.spreadPath * (2 - r.spreadPath) * r.effective) * move[j];
        spreadPath_[j] = (1 - r.spreadPath) * spreadPath_[j] + (isSteady ? path : 0);
        double drawn = 0;
        for (std::size_t i = 0; i < parents; ++i) drawn += r.weights[i] * chosen[i][j] * chosen[i][j];
        spread_[j] = leastSpread + (1 - r.rankOne - r.rankParents) * spread_[j] +
                     r.rankOne * spreadPath_[j] * spreadPath_[j] + r.rankParents * drawn;
    }
    step_ = std::min(0.5, step_ * std::exp(r.stepPath / r.damping * (length / r.length - 1)));
}

}  // namespace zentrik::cli
