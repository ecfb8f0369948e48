#include "sim/forces.h"

#include "model/store.h"

#include <cmath>

namespace zentrik {

namespace {

constexpr double nearAxis = 50;  // twips within which a link counts as vertical or horizontal

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

}  // namespace

void applyRotationalDrive(const Editor& ed, ForcePoints& points) {
    constexpr double scale = 1000;
    forEachLink(ed, [&](std::int32_t, const Link& link) {
        const float R1 = nodeAt(ed, link.N1).Rotate;
        const float R2 = nodeAt(ed, link.N2).Rotate;
        if (R1 == 0 && R2 == 0) return;
        const Drive drive{pointAt(points, link.N1), pointAt(points, link.N2), R1 * scale, R2 * scale};
        const Float2 d = difference(nodeAt(ed, link.N1), nodeAt(ed, link.N2));
        const float dx = d[0], dy = d[1];
        if (std::fabs(dx) < nearAxis)
            driveVertical(drive, dy);
        else if (std::fabs(dy) < nearAxis)
            driveHorizontal(drive, dx);
        else
            driveSlanted(drive, dx, dy, scale, R1, R2);
    });
}

}  // namespace zentrik
