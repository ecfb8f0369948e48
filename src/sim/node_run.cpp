#include "sim/node_run.h"

#include <algorithm>
#include <limits>

namespace zentrik {

namespace {

void alternate(NodeRun::Column<double>& column, double x, double y) {
    for (std::size_t k = 0; k < column.size(); k += 2) store(&column[k], Double2{x, y});
}

}  // namespace

Motion::Motion(const Editor& ed, float step, const Bounds& bounds)
    : dt(wide(step)), viscosity(wide(ed.Viscosity)) {
    alternate(wind, ed.LeftWind * 1000.0, 0);
    alternate(gravity, 0, wide(real(ed.Gravity * 10000.0)));
    // A place inside this box is still off every bound when it is rounded.
    constexpr double farthest = std::numeric_limits<std::int32_t>::max();
    const double lowest = std::max(static_cast<double>(bounds.low) + 1, -farthest);
    alternate(low, lowest, lowest);
    alternate(high, std::min(static_cast<double>(bounds.right) - 1, farthest),
              std::min(static_cast<double>(bounds.floor) - 1, farthest));
}

// Drag and wind, velocity, place from the new velocity and whether it is clear, each in its own short
// loop: the processor looks ahead only so far. (Half of a quotient is the quotient of the half, to the last
// bit: no 32-bit force is so small that halving it could lose one.)
ZENTRIK_WIDE_LOOP void integrate(const NodeRun& run, const Motion& motion, Arrivals& to) {
    const double dt = motion.dt, viscosity = motion.viscosity;
    const std::size_t count = 2 * run.count;
    NodeRun::Column<double> acceleration;
    for (std::size_t k = 0; k < count; ++k) {
        const float force = real(run.force[k] - viscosity * run.velocity[k] * 10 + motion.wind[k]);
        acceleration[k] = force / wide(run.mass[k]);
    }
    for (std::size_t k = 0; k < count; ++k)
        to.velocity[k] = real((acceleration[k] + motion.gravity[k]) * dt + run.velocity[k]);
    std::int64_t unclear = 0;
    for (std::size_t k = 0; k < count; ++k) {
        const double place = dt * dt * (acceleration[k] * 0.5) + dt * to.velocity[k] + run.place[k];
        to.place[k] = place;
        const int clear = int{place >= motion.low[k]} & int{place <= motion.high[k]};
        unclear += 1 - clear;
    }
    to.clear = unclear == 0;
}

}  // namespace zentrik
