#pragma once
#include <QImage>
#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace zentrik {

// A colour among a palette's: red, green, blue.
using Rgb = std::array<std::uint8_t, 3>;

// Counts the colours of a film's pictures and chooses the few that stand for all of them.
class ColourCount {
public:
    // Of the opaque pixels.
    void add(const QImage& picture);
    // At most so many: the space of colours is cut in two where the squared error is largest, for as long as
    // it can be seen. The same pictures give the same palette.
    std::vector<Rgb> palette(std::size_t most) const;

private:
    std::unordered_map<QRgb, std::uint64_t> pixels_;
};

// Finds the colour of a palette that is nearest.
class NearestColour {
public:
    explicit NearestColour(std::vector<Rgb> palette) : palette_(std::move(palette)) {}

    std::uint8_t operator()(QRgb colour);

private:
    std::vector<Rgb> palette_;
    std::unordered_map<QRgb, std::uint8_t> found_;
};

}  // namespace zentrik
