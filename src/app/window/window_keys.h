#pragma once
#include "app/sharing/sharing.h"
#include "app/window/events.h"
#include "app/window/plotting.h"
#include "app/window/window_parts.h"
#include "ui/keys.h"

namespace zentrik {

// Wires the table of keys to the window.
class WindowKeys {
public:
    WindowKeys(QWidget& window, Events& events, Sharing& sharing, Plotting& plotting,
               const WindowParts& parts);

private:
    Events& events_;
    const WindowParts parts_;

    void runCommand(const KeyRow& row);
    void openList();
    void paste();
};

}  // namespace zentrik
