#pragma once
#include "app/plot/plot_window.h"
#include "app/sharing/sharing.h"
#include "app/window/events.h"
#include "app/window/window_place.h"

#include <QToolButton>

namespace zentrik {

// What the main window has to do with its plot: how it is opened, what it shows, and where it leads.
class Plotting {
public:
    Plotting(QMainWindow& window, Events& events, Sharing& sharing, const WindowPlace& place);

    QToolButton* const button;  // opens and closes it

    void toggle();
    // Opens it with the curves of the selected node and link.
    void plotSelected();
    // Offers to plot a node or a link; false where there is neither.
    bool offer(QPoint place, std::int32_t node, std::int32_t link);
    // After every event.
    void follow();
    void drawIcon();
    // What the settings are to hold of its place.
    void keepPlace();
    void hide();

private:
    QMainWindow& window_;
    Events& events_;
    Sharing& sharing_;
    const WindowPlace& place_;
    PlotWindow* const plot_;

    void open();
    void plot(Of of, std::int32_t slot);
    void goTo(std::int64_t step);
    void share(PlotShare what);
};

}  // namespace zentrik
