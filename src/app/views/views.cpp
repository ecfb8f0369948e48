#include "app/views/views.h"

#include "app/views/key_pointer.h"
#include "basics/units.h"
#include "display/phase_strip.h"
#include "display/scene.h"
#include "edit/mouse.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace zentrik {

namespace {

// A plain widget would be no more than a filler to who hears it.
QAccessibleInterface* makeCanvas(const QString&, QObject* object) {
    auto* view = dynamic_cast<DrawingView*>(object);
    return view != nullptr ? new QAccessibleWidget(view, QAccessible::Canvas) : nullptr;
}

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
    QAccessible::installFactory(makeCanvas);
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
    keyPointer_ = std::make_unique<KeyPointer>(ed);
}

SceneView::~SceneView() = default;

PointF SceneView::pointerPlace() const {
    if (const auto place = keyPointer_->place()) return *place;
    const QPoint pointed = mapFromGlobal(QCursor::pos());
    const QPoint at = rect().contains(pointed) ? pointed : rect().center();
    return {twips(at.x()), twips(at.y())};
}

void SceneView::pointTo(PointF place) { keyPointer_->goTo(mouse, place); }

// Whatever another key is about to start, a drag by keys has ended before.
bool SceneView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && !belongsToDrag(*static_cast<QKeyEvent*>(event)))
        keyPointer_->letGo(mouse);
    return DrawingView::event(event);
}

void SceneView::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Alt) keyPointer_->letGo(mouse);
    DrawingView::keyReleaseEvent(event);
}

void SceneView::focusOutEvent(QFocusEvent* event) {
    keyPointer_->letGo(mouse);
    DrawingView::focusOutEvent(event);
}

void SceneView::keyPressEvent(QKeyEvent* event) {
    if (!belongsToDrag(*event)) keyPointer_->letGo(mouse);
    if (!keyPointer_->pressed(*event, mouse)) DrawingView::keyPressEvent(event);
}

void SceneView::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard) menuWanted(mapToGlobal(rect().center()), true);
}

void SceneView::mousePressEvent(QMouseEvent* event) {
    const bool forMenu = event->button() == Qt::RightButton && event->modifiers() == Qt::ControlModifier;
    if (forMenu && menuWanted(event->globalPosition().toPoint(), false)) return;
    DrawingView::mousePressEvent(event);
}

void SceneView::mouseMoveEvent(QMouseEvent* event) {
    keyPointer_->letGo(mouse);
    keyPointer_->hide();
    DrawingView::mouseMoveEvent(event);
}

void SceneView::paintEvent(QPaintEvent*) {
    pacer.measure([this] {
        paintScene();
        QPainter painter(this);
        keyPointer_->draw(painter);
    });
}

// Where the window's own pixels cannot be reached (between two pixels of a scaled screen, or where a part is
// to be painted anew) a picture is painted and shown, so that a scene looks the same everywhere.
void SceneView::paintScene() {
    sprites.setRatio(devicePixelRatioF());
    QPainter painter(this);
    if (Canvas(painter, ed_.sceneWidth, ed_.sceneHeight).bitmap) return paintScene(painter);
    QImage picture(size() * devicePixelRatioF(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(devicePixelRatioF());
    QPainter onPicture(&picture);
    paintScene(onPicture);
    onPicture.end();
    painter.drawImage(0, 0, picture);
}

void SceneView::paintScene(QPainter& painter) {
    if (ed_.Timer1.enabled || ed_.MouseIsDown) {
        under_ = over_ = QPixmap();
        return drawScene(painter, ed_, sprites);
    }
    if (!current_ || under_.size() != size() * devicePixelRatioF()) keepLayers();
    painter.drawPixmap(0, 0, under_);
    drawMarksAndBand(Canvas(painter, ed_.sceneWidth, ed_.sceneHeight), ed_);
    if (!over_.isNull()) painter.drawPixmap(0, 0, over_);
}

void SceneView::keepLayers() {
    const auto layer = [this](QColor ground, auto draw) {
        QPixmap picture(size() * devicePixelRatioF());
        picture.setDevicePixelRatio(devicePixelRatioF());
        picture.fill(ground);
        QPainter painter(&picture);
        draw(Canvas(painter, ed_.sceneWidth, ed_.sceneHeight));
        return picture;
    };
    under_ = layer(colourOf(ed_.BackColor), [this](const Canvas& canvas) { drawUnderMarks(canvas, ed_); });
    over_ = QPixmap();
    if (anythingOverMarks(ed_))
        over_ = layer(Qt::transparent, [this](const Canvas& canvas) { drawOverMarks(canvas, ed_, sprites); });
    current_ = true;
}

PhaseView::PhaseView(const Editor& ed, QWidget* parent) : DrawingView(ed, parent) {
    setObjectName("picPhase");
    setAccessibleName("Phase angle manager");
}

void PhaseView::paintEvent(QPaintEvent*) {
    pacer.measure([this] {
        QPainter painter(this);
        drawPhaseStrip(painter, ed_);
    });
    current_ = true;
}

}  // namespace zentrik
