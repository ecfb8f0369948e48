#pragma once
// The two drawing areas of the main window. They paint the record and turn Qt's mouse events into the
// procedures' calls; nothing else.

#include "app/paint_pacer.h"
#include "display/sprites.h"
#include "model/editor.h"

#include <QPixmap>
#include <QWidget>
#include <functional>

namespace zentrik {

// A double click arrives as press, release, double click, release, as Qt delivers it.
struct MouseCalls {
    std::function<void(int button, float x, float y)> down, up;
    std::function<void(float x, float y)> move;
    std::function<void()> doubleClick;
};

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
};

// picS
class SceneView : public DrawingView {
public:
    SceneView(const Editor& ed, QWidget* parent);
    // Reads the pictures of a folder for this view's screen.
    const SpritePictures& loadPictures(const std::string& folder);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    SpritePictures sprites_;
    std::string folder_;
    double ratio_ = 0;
    // What lies under and over the marks of a scene at rest; nothing while it moves.
    QPixmap under_, over_;

    void drawPicturesAnew();
    void paintScene();
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
