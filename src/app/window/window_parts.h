#pragma once
#include "app/bars/sprite_browser.h"
#include "app/bars/toolbars.h"
#include "app/views/views.h"

namespace zentrik {

// The parts of the window as seen: from the command toolbar down to the phase strip.
struct WindowParts {
    Toolbars& bars;
    SceneView& scene;
    SpriteBrowser& sprites;
    PhaseView& strip;

    // Tab goes through all of them in this order.
    void chooseTabOrder() const;
    // F6 goes to the next visible one, step 1, or to the one before, -1.
    void goTo(int step) const;
};

}  // namespace zentrik
