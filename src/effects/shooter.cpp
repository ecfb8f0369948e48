#include "effects/shooter.h"

#include "basics/angles.h"
#include "basics/numbers.h"
#include "host/host.h"
#include "host/questions.h"
#include "model/readout.h"
#include "model/redraw.h"
#include "model/shooter_aim.h"
#include "model/store.h"

#include <cmath>

namespace zentrik {

namespace {

bool isShooter(const Editor& ed, std::int32_t i) {
    return nodeExists(ed, i) && nodeAt(ed, i).Used && nodeAt(ed, i).Trigger != none;
}

// Shooters may stand in a chain, each the trigger of the next; the last of them fires.
std::int32_t endOfChain(const Editor& ed, std::int32_t shooter) {
    forEachNode(ed, [&](std::int32_t j, const Node& node) {
        if (node.Trigger == shooter) shooter = j;
    });
    return shooter;
}

// The longer the line from the trigger to the shooter, the faster the ball.
void launch(const Editor& ed, const Node& shooter, Node& ball) {
    double speed = ed.ShooterVelocity;
    double angle = ed.ShooterDirection;
    if (nodeExists(ed, shooter.Trigger)) {
        const double dx = static_cast<double>(shooter.X) - nodeAt(ed, shooter.Trigger).X;
        const double dy = static_cast<double>(shooter.Y) - nodeAt(ed, shooter.Trigger).Y;
        speed = toReal(10 * std::sqrt(dx * dx + dy * dy));
        angle = barrelAngle(ed, shooter);
    }
    ball.Vx = toReal(speed * std::cos(angle));
    ball.Vy = toReal(-speed * std::sin(angle));
}

}  // namespace

void mnuFire_Click(Editor& ed, Host&) {
    // The last shooter may be gone by now, or its number may have passed to another node.
    if (!isShooter(ed, ed.SelectedNode) && isShooter(ed, ed.LastShooter)) {
        ed.SelectedNode = ed.LastShooter;
        DisplayNodeData(ed, ed.SelectedNode);
        redrawScene(ed);
    }
    if (!ed.Timer1.enabled || !isShooter(ed, ed.SelectedNode)) return;

    ed.LastShooter = ed.SelectedNode;
    ed.SelectedNode = endOfChain(ed, ed.SelectedNode);
    const Node& shooter = nodeAt(ed, ed.SelectedNode);
    Node ball = standardNode(ed, shooter.X, shooter.Y);
    launch(ed, shooter, ball);
    const std::int32_t fired = appendNode(ed, ball);
    if (ed.marks.mnuCannonBallFocus) ed.SelectedNode = fired;
    DisplayNodeData(ed, ed.SelectedNode);
    redrawModel(ed);
}

void mnuShooterDirection_Click(Editor& ed, Host& host) {
    const auto degrees = askNumber(host, "Enter shooter direction (0-360 degrees).", "Set Shooter Direction",
                                   fixedText(ed.ShooterDirection * radiansToDegrees, 1));
    if (degrees && *degrees >= 0 && *degrees <= 360)
        ed.ShooterDirection = toReal(*degrees * degreesToRadians);
}

void mnuShooterVelocity_Click(Editor& ed, Host& host) {
    const auto velocity =
        askNumber(host, "Enter shooter velocity.", "Set Shooter Velocity", realText(ed.ShooterVelocity));
    if (velocity && *velocity > -30000 && *velocity <= 30000) ed.ShooterVelocity = toReal(*velocity);
}

}  // namespace zentrik
