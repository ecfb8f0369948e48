#include "sim/forces.h"

#include "model/store.h"

#include <algorithm>
#include <cmath>

namespace zentrik {

namespace {

constexpr double degreesToRadians = 0.01745;
constexpr double nearAxis = 50;  // twips within which a link counts as vertical or horizontal

ForcePoint& pointAt(ForcePoints& points, std::int32_t i) { return points[static_cast<std::size_t>(i)]; }

// One link's ends with what each of them drives the other by.
struct Drive {
    ForcePoint& a;
    ForcePoint& b;
    double byA, byB;  // Rotate x scale
};

void driveVertical(const Drive& drive, float dy) {
    const double sign = dy < 0 ? 1 : -1;
    drive.a.force[0] = real(drive.a.force[0] + sign * drive.byB);
    drive.b.force[0] = real(drive.b.force[0] - sign * drive.byA);
}

void driveHorizontal(const Drive& drive, float dx) {
    const double sign = dx < 0 ? -1 : 1;
    drive.a.force[1] = real(drive.a.force[1] + sign * drive.byB);
    drive.b.force[1] = real(drive.b.force[1] - sign * drive.byA);
}

// Signs of the four force components by quadrant, in the order Fx(N1), Fy(N1), Fx(N2), Fy(N2). The
// quadrants are not mirror images of each other: that asymmetry is what makes a driven wheel roll.
struct DriveSigns {
    double fx1, fy1, fx2, fy2;
};
constexpr DriveSigns driveSigns[2][2] = {
    // dy < 0           dy >= 0
    {{+1, -1, -1, +1}, {-1, -1, +1, +1}},  // dx < 0
    {{+1, +1, -1, -1}, {+1, +1, +1, -1}},  // dx > 0
};

void driveSlanted(const Drive& drive, float dx, float dy, double scale, float R1, float R2) {
    const DriveSigns& sign = driveSigns[dx < 0 ? 0 : 1][dy < 0 ? 0 : 1];
    const float theta = real(std::atan(std::fabs(wide(dy) / dx)));
    const float c = real(std::cos(wide(theta)));
    const float s = real(std::sin(wide(theta)));
    drive.a.force[0] = real(drive.a.force[0] + sign.fx1 * (wide(R2) * c * scale));
    drive.a.force[1] = real(drive.a.force[1] + sign.fy1 * (wide(R2) * s * scale));
    drive.b.force[0] = real(drive.b.force[0] + sign.fx2 * (wide(R1) * c * scale));
    drive.b.force[1] = real(drive.b.force[1] + sign.fy2 * (wide(R1) * s * scale));
}

// What all animators share in one step.
struct AnimatorClock {
    bool running;
    double phase;  // radians
    float reached;
};

// Factor by which an animator stretches its link's rest length; it starts once the clock's phase has
// passed its own.
float animatorFactor(const Link& link, const AnimatorClock& clock) {
    if (!link.Animator || !clock.running) return 1;
    const double angle = link.Angle * degreesToRadians;
    if (!(real(angle) < clock.reached)) return 1;
    return real(link.Force * std::sin(clock.phase - angle) + 1);
}

}  // namespace

void applyRotationalDrive(const Editor& ed, ForcePoints& points) {
    const double scale = ed.RotationScale;
    forEachLink(ed, [&](std::int32_t, const Link& link) {
        const float R1 = nodeAt(ed, link.N1).Rotate;
        const float R2 = nodeAt(ed, link.N2).Rotate;
        if (R1 == 0 && R2 == 0) return;
        const Drive drive{pointAt(points, link.N1), pointAt(points, link.N2), R1 * scale, R2 * scale};
        const Float2 d = difference(drive.a.place, drive.b.place);
        const float dx = d[0], dy = d[1];
        if (std::fabs(dx) < nearAxis)
            driveVertical(drive, dy);
        else if (std::fabs(dy) < nearAxis)
            driveHorizontal(drive, dx);
        else
            driveSlanted(drive, dx, dy, scale, R1, R2);
    });
}

void applySprings(Editor& ed, ForcePoints& points, std::vector<std::int32_t>& barriers) {
    const double phase = wide(ed.DeltaAngle) * ed.AnimationTime;
    const AnimatorClock clock{ed.buttons.animation, phase, std::fabs(real(phase))};
    forEachLink(ed, [&](std::int32_t j, Link& link) {
        ForcePoint& a = pointAt(points, link.N1);
        ForcePoint& b = pointAt(points, link.N2);
        const Double2 d = wide(difference(a.place, b.place));
        const float length = real(std::sqrt(d[0] * d[0] + d[1] * d[1]));
        link.CurrentLength = length;
        if (link.Barrier) barriers.push_back(j);
        // Ends at the same place give no direction to pull in: such a link exerts nothing, whether links
        // of length zero are allowed or not.
        if (length == 0) return;
        const float F = real((length - wide(animatorFactor(link, clock)) * link.RestLength) * link.k * 100);
        const Float2 force = round32(d / wide(length) * wide(F));
        a.force -= force;
        b.force += force;
    });
}

void Attraction::clear() {
    number_.clear();
    x_.clear();
    y_.clear();
    gravity_.clear();
}

void Attraction::add(std::int32_t i, const Node& node) {
    number_.push_back(i);
    x_.push_back(node.X);
    y_.push_back(node.Y);
    gravity_.push_back(wide(node.Gravity));
}

void Attraction::update(std::int32_t i, const Node& node) {
    const auto found = std::lower_bound(number_.begin(), number_.end(), i);
    if (found == number_.end() || *found != i) return;
    const auto at = static_cast<std::size_t>(found - number_.begin());
    x_[at] = node.X;
    y_[at] = node.Y;
    if (!node.Used) gravity_[at] = 0;
}

void Attraction::updateAll(const Editor& ed) {
    for (const std::int32_t i : number_) update(i, nodeAt(ed, i));
}

void Attraction::pull(Int2 place, Float2& force) const {
    for (std::size_t m = 0; m < number_.size(); ++m) {
        const Double2 d = wide(round32(wide(place) - Double2{x_[m], y_[m]}));
        const double distance = real(std::sqrt(d[0] * d[0] + d[1] * d[1]));
        if (distance == 0) continue;  // at the same place, as the node itself is
        const double square = (distance / 10000) * (distance / 10000);
        force = round32(wide(force) - wide(round32(d / distance * gravity_[m] / square)) * 10.0);
    }
}

}  // namespace zentrik
