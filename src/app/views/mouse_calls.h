#pragma once
#include <functional>

namespace zentrik {

// What a pointer does over a drawing area, whoever moves it; places are twips of the area.
// A double click arrives as press, release, double click, release, as Qt delivers it.
struct MouseCalls {
    std::function<void(int button, float x, float y)> down, up;
    std::function<void(float x, float y, bool leftHeld)> move;
    std::function<void()> doubleClick;
    std::function<void()> leave = [] {};  // the pointer is no longer over the area
};

}  // namespace zentrik
