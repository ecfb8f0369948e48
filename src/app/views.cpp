#include "app/views.h"

#include "display/phase_strip.h"
#include "display/scene.h"
#include "edit/mouse.h"
#include "model/units.h"

#include <QMouseEvent>
#include <QPainter>

namespace zentrik {

namespace {

int buttonNumber(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return leftButton;
        case Qt::RightButton:
            return rightButton;
        case Qt::MiddleButton:
            return middleButton;
        default:
            return 0;
    }
}

float twips(double pixels) { return static_cast<float>(pixels * twipsPerPixel); }

}  // namespace

DrawingView::DrawingView(const Editor& ed, QWidget* parent) : QWidget(parent), pacer(*this), ed_(ed) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void DrawingView::mousePressEvent(QMouseEvent* event) {
    if (const int button = buttonNumber(event->button()))
        mouse.down(button, twips(event->position().x()), twips(event->position().y()));
}

void DrawingView::mouseMoveEvent(QMouseEvent* event) {
    mouse.move(twips(event->position().x()), twips(event->position().y()),
               event->buttons().testFlag(Qt::LeftButton));
}

void DrawingView::mouseReleaseEvent(QMouseEvent* event) {
    if (const int button = buttonNumber(event->button()))
        mouse.up(button, twips(event->position().x()), twips(event->position().y()));
}

void DrawingView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        mouse.doubleClick();
    else
        mousePressEvent(event);  // two quick presses of another button are just that
}

void DrawingView::leaveEvent(QEvent*) { mouse.leave(); }

SceneView::SceneView(const Editor& ed, QWidget* parent) : DrawingView(ed, parent) {
    setObjectName("picS");
    setAccessibleName("Scene");
}

void SceneView::paintEvent(QPaintEvent*) {
    sprites.setRatio(devicePixelRatioF());
    QPainter painter(this);
    drawScene(painter, ed_, sprites);
}

PhaseView::PhaseView(const Editor& ed, QWidget* parent) : DrawingView(ed, parent) {
    setObjectName("picPhase");
    setAccessibleName("Phase angle manager");
}

void PhaseView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawPhaseStrip(painter, ed_);
}

}  // namespace zentrik
