#pragma once
// Axes with round numbers.

#include <vector>

namespace zentrik {

struct Range {
    double from = 0, to = 1;
    bool operator==(const Range&) const = default;
};

struct Axis {
    Range range;
    double step = 1;  // between two ticks: 1, 2 or 5 times a power of ten
    bool operator==(const Axis&) const = default;
};

// At most so many steps long, whose number is at least 1. Ranges that are empty or no numbers are replaced by
// one around them.
Axis axisOver(Range values, int steps);
// The same, grown to whole steps at both ends.
Axis roundAxisOver(Range values, int steps);

std::vector<double> ticksOf(const Axis& axis);

}  // namespace zentrik
