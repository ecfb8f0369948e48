#include "app/window/time_wheel.h"

#include "app/bars/status_panels.h"

#include <QWheelEvent>

namespace zentrik {

TimeWheel::TimeWheel(StatusPanel& clock) : QObject(&clock) {
    clock.installEventFilter(this);
    clock.setTip(
        "Turn the wheel here, or press Ctrl+Left and Ctrl+Right, to go through the run step by step; with "
        "Shift a hundred steps");
}

bool TimeWheel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel) return QObject::eventFilter(watched, event);
    const auto& wheel = *static_cast<QWheelEvent*>(event);
    turn_ += wheel.angleDelta().y() + wheel.angleDelta().x();
    const int notches = turn_ / QWheelEvent::DefaultDeltasPerStep;
    turn_ %= QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0) turned(notches * (wheel.modifiers().testFlag(Qt::ShiftModifier) ? 100 : 1));
    return true;
}

}  // namespace zentrik
