#include "app/views/key_pointer.h"

#include "basics/units.h"
#include "edit/mouse.h"
#include "model/grid.h"
#include "model/store.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace zentrik {

namespace {

constexpr float smallStep = 75;  // twips; below the hit radius, so that nothing is passed over
constexpr float farSteps = 10;

const Node* selected(const Editor& ed) {
    return nodeExists(ed, ed.SelectedNode) ? &nodeAt(ed, ed.SelectedNode) : nullptr;
}

bool isArrow(int key) { return key >= Qt::Key_Left && key <= Qt::Key_Down; }

}  // namespace

bool belongsToDrag(const QKeyEvent& event) {
    const bool isModifier = event.key() >= Qt::Key_Shift && event.key() <= Qt::Key_Alt;
    return isModifier || (isArrow(event.key()) && event.modifiers().testFlag(Qt::AltModifier));
}

// Where the selection is, else in the middle.
PointF KeyPointer::start() const {
    if (const Node* node = selected(ed_)) return {static_cast<float>(node->X), static_cast<float>(node->Y)};
    const std::int32_t x = ed_.sceneWidth / 2, y = ed_.sceneHeight / 2;
    return {static_cast<float>(x), static_cast<float>(y)};
}

PointF KeyPointer::moved(PointF from, int key, bool far) const {
    const bool snap = ed_.buttons.snap && ed_.GridSize >= 1;
    const float step = (snap ? ed_.GridSize : smallStep) * (far ? farSteps : 1);
    const float x = from.x + (key == Qt::Key_Left ? -step : key == Qt::Key_Right ? step : 0);
    const float y = from.y + (key == Qt::Key_Up ? -step : key == Qt::Key_Down ? step : 0);
    const auto inside = [](float at, std::int32_t extent) {
        return std::clamp(at, 0.0F, std::max(0.0F, static_cast<float>(extent - twipsPerPixel)));
    };
    return {inside(SnapToGrid(ed_, x), ed_.sceneWidth), inside(SnapToGrid(ed_, y), ed_.sceneHeight)};
}

void KeyPointer::goTo(const MouseCalls& mouse, PointF place) {
    place_ = place;
    mouse.move(place.x, place.y, false);
}

bool KeyPointer::pressed(const QKeyEvent& event, const MouseCalls& mouse) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const bool far = modifiers.testFlag(Qt::ShiftModifier);
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
        click(mouse, modifiers);
    } else if (isArrow(event.key()) && modifiers.testFlag(Qt::AltModifier)) {
        drag(mouse, event.key(), far);
    } else if (isArrow(event.key()) && !modifiers.testFlag(Qt::ControlModifier)) {
        goTo(mouse, place_ ? moved(*place_, event.key(), far) : start());
    } else {
        return false;
    }
    return true;
}

void KeyPointer::click(const MouseCalls& mouse, Qt::KeyboardModifiers modifiers) {
    if (!place_) place_ = start();
    const auto [x, y] = *place_;
    const int button = modifiers.testFlag(Qt::ShiftModifier) ? rightButton : leftButton;
    mouse.move(x, y, false);  // what lies there may have changed since
    mouse.down(button, x, y);
    mouse.up(button, x, y);
    if (modifiers.testFlag(Qt::ControlModifier)) {
        mouse.doubleClick();
        mouse.up(button, x, y);
    }
    mouse.move(x, y, false);
}

void KeyPointer::drag(const MouseCalls& mouse, int key, bool far) {
    const Node* node = selected(ed_);
    if (node == nullptr || !node->Used) return;
    const PointF from{static_cast<float>(node->X), static_cast<float>(node->Y)};
    const PointF to = moved(from, key, far);
    if (!dragging_ || !ed_.MouseIsDown) {
        mouse.move(from.x, from.y, false);
        const std::int32_t dragged = ed_.SelectedNode;
        mouse.down(leftButton, from.x, from.y);
        dragging_ = true;
        place_ = from;
        // Where nodes lie on top of each other, the press is the lowest one's.
        if (ed_.SelectedNode != dragged || !ed_.MouseIsDown) return letGo(mouse);
    }
    mouse.move(to.x, to.y, true);
    place_ = to;
}

void KeyPointer::letGo(const MouseCalls& mouse) {
    if (std::exchange(dragging_, false) && place_) mouse.up(leftButton, place_->x, place_->y);
}

void KeyPointer::draw(QPainter& painter) const {
    if (!place_) return;
    const QPointF at(place_->x / twipsPerPixel, place_->y / twipsPerPixel);
    constexpr double inner = 5, outer = 13;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    for (const auto& [colour, width] : {std::pair{Qt::white, 4.0}, std::pair{Qt::black, 1.6}}) {
        painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
        painter.drawEllipse(at, 9, 9);
        for (const QPointF way : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
            painter.drawLine(at + way * inner, at + way * outer);
    }
}

}  // namespace zentrik
