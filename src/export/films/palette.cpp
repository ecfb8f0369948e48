#include "export/films/palette.h"

#include <algorithm>
#include <limits>

namespace zentrik {

namespace {

struct Counted {
    Rgb colour;
    std::uint64_t pixels;
};
using Colours = std::vector<Counted>;

Rgb partsOf(QRgb colour) {
    return {static_cast<std::uint8_t>(qRed(colour)), static_cast<std::uint8_t>(qGreen(colour)),
            static_cast<std::uint8_t>(qBlue(colour))};
}

// Deviation of a colour's part, of 255, that nobody sees in a moving picture. Finer shades of smooth edges
// would only swell the file.
constexpr double tolerance = 6;

// Neighbouring colours, to be shown as one.
struct Box {
    Colours::iterator first, last;
    std::size_t axis = 0;  // along which they differ most
    std::array<double, 3> mean{};
    double error = 0;  // squared, along the axis; 0 where it is too small to be seen

    Box(Colours::iterator from, Colours::iterator to) : first(from), last(to) {
        double pixels = 0;
        std::array<double, 3> sum{}, squares{};
        for (auto it = first; it != last; ++it) {
            const auto count = static_cast<double>(it->pixels);
            pixels += count;
            for (std::size_t a = 0; a < 3; ++a) {
                sum[a] += count * it->colour[a];
                squares[a] += count * it->colour[a] * it->colour[a];
            }
        }
        for (std::size_t a = 0; a < 3; ++a) {
            mean[a] = sum[a] / pixels;
            const double spread = squares[a] - sum[a] * mean[a];
            if (spread <= error) continue;
            error = spread;
            axis = a;
        }
        if (error <= tolerance * tolerance * pixels) error = 0;
    }

    // At the mean; both parts hold something when the colours differ.
    std::pair<Box, Box> halves() const {
        const auto middle =
            std::partition(first, last, [this](const Counted& it) { return it.colour[axis] <= mean[axis]; });
        return {Box(first, middle), Box(middle, last)};
    }

    // The colour of most of its pixels, if there is one, so that plain areas keep theirs; else the mean.
    Rgb colour() const {
        std::uint64_t all = 0;
        const Counted* most = &*first;
        for (auto it = first; it != last; ++it) {
            all += it->pixels;
            if (it->pixels > most->pixels) most = &*it;
        }
        if (2 * most->pixels > all) return most->colour;
        Rgb middle;
        for (std::size_t a = 0; a < 3; ++a) middle[a] = static_cast<std::uint8_t>(mean[a] + 0.5);
        return middle;
    }
};

}  // namespace

void ColourCount::add(const QImage& picture) {
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0, end; x < picture.width(); x = end) {
            for (end = x + 1; end < picture.width() && line[end] == line[x];) ++end;
            if (qAlpha(line[x]) == 255) pixels_[line[x]] += static_cast<std::uint64_t>(end - x);
        }
    }
}

std::vector<Rgb> ColourCount::palette(std::size_t most) const {
    Colours all;
    for (const auto& [colour, pixels] : pixels_) all.push_back({partsOf(colour), pixels});
    if (all.empty()) all.push_back({});
    std::sort(all.begin(), all.end(), [](const Counted& a, const Counted& b) { return a.colour < b.colour; });
    std::vector<Box> boxes{Box(all.begin(), all.end())};
    while (boxes.size() < most) {
        const auto worst = std::max_element(boxes.begin(), boxes.end(),
                                            [](const Box& a, const Box& b) { return a.error < b.error; });
        if (worst->error == 0) break;
        auto [low, high] = worst->halves();
        if (low.first == low.last || high.first == high.last) break;
        *worst = low;
        boxes.push_back(high);
    }
    std::vector<Rgb> colours;
    colours.reserve(boxes.size());
    for (const Box& box : boxes) colours.push_back(box.colour());
    return colours;
}

std::uint8_t NearestColour::operator()(QRgb colour) {
    const auto known = found_.find(colour);
    if (known != found_.end()) return known->second;
    const Rgb wanted = partsOf(colour);
    int nearest = std::numeric_limits<int>::max();
    std::uint8_t& index = found_[colour];
    for (std::size_t i = 0; i < palette_.size(); ++i) {
        int distance = 0;
        for (std::size_t a = 0; a < 3; ++a) {
            const int difference = wanted[a] - palette_[i][a];
            distance += difference * difference;
        }
        if (distance >= nearest) continue;
        nearest = distance;
        index = static_cast<std::uint8_t>(i);
    }
    return index;
}

}  // namespace zentrik
