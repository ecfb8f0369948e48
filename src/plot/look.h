#pragma once
// Colours and letters of plots, in light and dark.

#include "display/canvas/lettering.h"

#include <QPen>
#include <string>

namespace zentrik {

struct PlotLook {
    bool dark;
    std::int32_t paper, ink, faint, grid, pointed;  // red + 256 * green + 65536 * blue

    // Of a curve: colours that are told apart with any kind of colour vision, first drawn through, then
    // dashed, then dotted.
    QPen pen(std::size_t curve, double ratio) const;
    Lettering& letters(double ratio) const { return lettering(ratio, ink, paper); }
};
const PlotLook& lookOf(bool dark);

// With five digits.
std::string numberText(double value);

}  // namespace zentrik
