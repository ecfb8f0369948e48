#include "plot/axis.h"

#include <algorithm>
#include <cmath>

namespace zentrik {

namespace {

constexpr double largest = 1e300;  // of a number on an axis

Range usable(Range values) {
    const auto bounded = [](double v) { return std::isnan(v) ? 0 : std::clamp(v, -largest, largest); };
    const double from = bounded(std::min(values.from, values.to)),
                 to = bounded(std::max(values.from, values.to));
    const double least = std::max(std::fabs(from), std::fabs(to)) * 1e-6;  // of what 32-bit reals tell apart
    if (to - from > least) return {from, to};
    const double around = from == 0 ? 1 : std::fabs(from) / 10;
    return {from - around, to + around};
}

double roundUp(double length) {
    const double power = std::pow(10, std::floor(std::log10(length)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (factor * power >= length * (1 - 1e-9)) return factor * power;
    return 10 * power;
}

}  // namespace

Axis axisOver(Range values, int steps) {
    const Range range = usable(values);
    return {range, roundUp((range.to - range.from) / std::max(steps, 1))};
}

Axis roundAxisOver(Range values, int steps) {
    Axis axis = axisOver(values, steps);
    axis.range.from = std::floor(axis.range.from / axis.step) * axis.step;
    axis.range.to = std::ceil(axis.range.to / axis.step) * axis.step;
    return axis;
}

std::vector<double> ticksOf(const Axis& axis) {
    std::vector<double> ticks;
    const double slack = axis.step * 1e-6;
    const double first = std::ceil((axis.range.from - slack) / axis.step);
    const double last = std::floor((axis.range.to + slack) / axis.step);
    for (double k = first; k <= last; ++k) ticks.push_back(k * axis.step);
    return ticks;
}

}  // namespace zentrik
