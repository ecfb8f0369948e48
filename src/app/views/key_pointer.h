#pragma once
#include "app/views/mouse_calls.h"
#include "model/editor.h"

#include <QPointF>
#include <optional>

class QKeyEvent;
class QPainter;

namespace zentrik {

// The scene's pointer that is moved by keys. It acts through the same calls as the mouse, so that whatever a
// pointer can do, keys can.
class KeyPointer {
public:
    explicit KeyPointer(const Editor& ed) : ed_(ed) {}

    // Twips of the scene; none until a key needs it, or once the mouse has moved.
    std::optional<PointF> place() const { return place_; }
    void hide() { place_.reset(); }
    void goTo(const MouseCalls& mouse, PointF place);
    // Ends the drag that lasts as long as Alt is held, if there is one.
    void letGo(const MouseCalls& mouse);
    // False for a key that is none of its own.
    bool pressed(const QKeyEvent& event, const MouseCalls& mouse);
    // Painted where the pointer is: crisp on any background.
    void draw(QPainter& painter) const;

private:
    const Editor& ed_;
    std::optional<PointF> place_;
    bool dragging_ = false;

    PointF start() const;
    PointF moved(PointF from, int key, bool far) const;
    void click(const MouseCalls& mouse, Qt::KeyboardModifiers modifiers);
    void drag(const MouseCalls& mouse, int key, bool far);
};

// Whether a key drags the selected node, or is one that may be held meanwhile.
bool belongsToDrag(const QKeyEvent& event);

}  // namespace zentrik
