#pragma once
// The two drawing areas of the main window. They paint the record and turn Qt's mouse events into the
// procedures' calls; nothing else.

#include "app/views/mouse_calls.h"
#include "app/views/paint_pacer.h"
#include "display/sprites.h"
#include "model/editor.h"

#include <QPixmap>
#include <QWidget>
#include <memory>

namespace zentrik {

class DrawingView : public QWidget {
public:
    DrawingView(const Editor& ed, QWidget* parent);

    MouseCalls mouse;
    PaintPacer pacer;

    // Whether it shows the record as it is, but for what the pointer alone changes.
    bool isCurrent() const { return current_; }
    void recordChanged() { current_ = false; }
    void showRecord() {
        current_ = false;
        pacer.request();
    }

protected:
    const Editor& ed_;
    bool current_ = false;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
};

class KeyPointer;

// picS
class SceneView : public DrawingView {
public:
    SceneView(const Editor& ed, QWidget* parent);
    ~SceneView() override;

    SpritePictures sprites;
    // A menu is asked for at a place of the screen, by a key for what is selected or else for what is under
    // the pointer. A plain right click is the drawing's own. False where there is
    // nothing to offer.
    std::function<bool(QPoint place, bool byKey)> menuWanted;

    // The pointer that keys move, if there is one, else the mouse's, else the middle; twips.
    PointF pointerPlace() const;
    // Brings the keys' pointer to a place.
    void pointTo(PointF place);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    std::unique_ptr<KeyPointer> keyPointer_;
    // What lies under and over the marks of a scene at rest; nothing while it moves.
    QPixmap under_, over_;

    void paintScene();
    void paintScene(QPainter& painter);
    void keepLayers();
};

// picPhase
class PhaseView : public DrawingView {
public:
    PhaseView(const Editor& ed, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace zentrik
