#pragma once
#include <QRect>
#include <QSize>

namespace zentrik {

// A window's size on a screen: not beyond it, unless the least size is.
inline QSize boundedSize(QSize wanted, QSize least, QSize screen) {
    return wanted.boundedTo(screen).expandedTo(least);
}

// The place moved into an area, and cut where it is larger than that.
inline QRect insideArea(QRect place, const QRect& area) {
    place.setSize(place.size().boundedTo(area.size()));
    if (place.right() > area.right()) place.moveRight(area.right());
    if (place.bottom() > area.bottom()) place.moveBottom(area.bottom());
    if (place.left() < area.left()) place.moveLeft(area.left());
    if (place.top() < area.top()) place.moveTop(area.top());
    return place;
}

// What title bar and borders take where the window system has not told it yet, pixels.
inline constexpr QSize usualFrame{8, 44};

}  // namespace zentrik
