#include "app/window/plotting.h"

#include "app/bars/icons.h"
#include "export/picture.h"
#include "export/plot_picture.h"
#include "model/redraw.h"
#include "model/store.h"
#include "sim/run.h"
#include "ui/keys.h"

#include <QApplication>
#include <QKeySequence>
#include <QMenu>
#include <algorithm>

namespace zentrik {

namespace {

constexpr QSize usualSize{900, 420};

// Of a node or a link that somebody wants to see.
constexpr std::string_view usualOfNode[] = {"height", "speed"}, usualOfLink[] = {"length", "force"};

std::vector<Curve> usualCurves(Of of, std::int32_t slot) {
    std::vector<Curve> curves;
    appendCurves(curves, of, slot);
    std::erase_if(curves, [of](const Curve& curve) {
        const std::span<const std::string_view> usual = of == Of::node ? usualOfNode : usualOfLink;
        return std::find(usual.begin(), usual.end(), curve.quantity->name) == usual.end();
    });
    return curves;
}

}  // namespace

Plotting::Plotting(QMainWindow& window, Events& events, Sharing& sharing, const WindowPlace& place)
    : button(new QToolButton(&window)),
      window_(window),
      events_(events),
      sharing_(sharing),
      place_(place),
      plot_(new PlotWindow(&window)) {
    button->setObjectName("plotButton");
    button->setAutoRaise(true);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setIconSize({16, 16});
    button->setFixedWidth(26);
    button->setToolTip("Plot of the run (" + QKeySequence(keyFor(KeyAct::plot)).toString() + ")");
    button->setStatusTip("Shows what happens in the run as curves");
    button->setAccessibleName("Plot");
    QObject::connect(button, &QToolButton::clicked, plot_, [this] { toggle(); });
    plot_->changed = [this] { follow(); };
    plot_->opened = [this] { button->setChecked(true); };
    plot_->closed = [this] {
        keepPlace();
        button->setChecked(false);
    };
    plot_->momentChosen = [this](std::int64_t step) { goTo(step); };
    plot_->shared = [this](PlotShare what) { share(what); };
    drawIcon();
}

void Plotting::drawIcon() { button->setIcon(themedIcon("plot", QApplication::palette())); }

void Plotting::toggle() { plot_->isVisible() ? static_cast<void>(plot_->close()) : open(); }

void Plotting::open() {
    if (events_.host.isAsking()) return button->setChecked(plot_->isVisible());
    const QByteArray place = QByteArray::fromBase64(QByteArray::fromStdString(events_.ed.plotPlace));
    if (!plot_->isVisible() && !plot_->restoreGeometry(place)) place_.placeBelow(*plot_, usualSize);
    plot_->show();
    plot_->raise();
}

void Plotting::hide() {
    plot_->hide();
    button->setChecked(false);
}

void Plotting::keepPlace() {
    if (plot_->isVisible()) events_.ed.plotPlace = plot_->saveGeometry().toBase64().toStdString();
}

void Plotting::plot(Of of, std::int32_t slot) {
    plot_->choose(usualCurves(of, slot));
    open();
}

void Plotting::plotSelected() {
    const Editor& ed = events_.ed;
    if (selectedNode(ed) != nullptr) plot(Of::node, ed.SelectedNode);
    if (selectedLink(ed) != nullptr) plot(Of::link, ed.SelectedLink);
    if (selectedNode(ed) != nullptr || selectedLink(ed) != nullptr) return;
    events_.follow([](Editor& record, Host&) { panel(record, 5) = "Select a node or a link to plot it."; });
}

bool Plotting::offer(QPoint place, std::int32_t node, std::int32_t link) {
    const bool isNode = nodeExists(events_.ed, node), isLink = linkExists(events_.ed, link);
    if (!isNode && !isLink) return false;
    auto* menu = new QMenu(&window_);
    menu->setObjectName("plotMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (isNode) menu->addAction("&Plot this node", [this, node] { plot(Of::node, node); });
    if (isLink) menu->addAction("P&lot this link", [this, link] { plot(Of::link, link); });
    menu->popup(place);
    return true;
}

void Plotting::follow() { plot_->follow(events_.timeline, events_.ed); }

// The animation stops for it.
void Plotting::goTo(std::int64_t step) {
    if (events_.ed.Timer1.enabled)
        events_.perform("Stop", [](Editor& ed, Host&) {
            stopAnimation(ed);
            redrawScene(ed);
        });
    events_.travel(static_cast<int>(step - events_.timeline.at));
}

void Plotting::share(PlotShare what) {
    const RecordedRun& run = events_.timeline.run;
    const Drawing drawing = drawingOf(plot_->plot(), plot_->plotSize(), titleOf(events_.ed));
    switch (what) {
        case PlotShare::copyPicture:
            return sharing_.copyDrawing(drawing);
        case PlotShare::savePicture:
            return sharing_.saveDrawing(drawing);
        case PlotShare::saveTable:
            if (!run.moments.empty())
                return sharing_.saveCurves(run, stretchAt(run, events_.timeline.at), plot_->curves());
            return events_.follow([](Editor& ed, Host&) {
                panel(ed, 5) = "Start the animation first: there is no run to write.";
            });
    }
}

}  // namespace zentrik
