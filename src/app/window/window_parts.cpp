#include "app/window/window_parts.h"

#include <QApplication>
#include <QComboBox>
#include <QToolBar>
#include <algorithm>

namespace zentrik {

namespace {

// What Tab can reach in a bar, left to right.
std::vector<QWidget*> stopsOf(const QToolBar& bar) {
    std::vector<QWidget*> stops;
    for (QAction* action : bar.actions()) {
        QWidget* widget = bar.widgetForAction(action);
        if (widget != nullptr && (widget->focusPolicy() & Qt::TabFocus) != 0) stops.push_back(widget);
    }
    return stops;
}

// Where the keyboard goes in a part: of a bar the first button that can be pressed.
QWidget* entranceOf(QWidget* part) {
    const auto* bar = qobject_cast<QToolBar*>(part);
    if (bar == nullptr) return part;
    for (QWidget* stop : stopsOf(*bar))
        if (stop->isVisible() && stop->isEnabled()) return stop;
    return part;
}

}  // namespace

void WindowParts::chooseTabOrder() const {
    std::vector<QWidget*> order = stopsOf(*bars.Toolbar1);
    for (QWidget* stop : stopsOf(*bars.Toolbar2)) order.push_back(stop);
    order.insert(order.end(), {&scene, &sprites, &strip});
    for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

void WindowParts::goTo(int step) const {
    std::vector<QWidget*> parts{bars.Toolbar1, bars.Toolbar2, &scene, &sprites, &strip};
    std::erase_if(parts, [](const QWidget* part) { return !part->isVisible(); });
    const QWidget* focus = QApplication::focusWidget();
    const auto here = std::find_if(parts.begin(), parts.end(), [&](const QWidget* part) {
        return part == focus || (focus != nullptr && part->isAncestorOf(focus));
    });
    const auto count = static_cast<std::ptrdiff_t>(parts.size());
    const std::ptrdiff_t at = here == parts.end() ? (step > 0 ? -1 : 0) : here - parts.begin();
    entranceOf(parts[static_cast<std::size_t>((at + step + count) % count)])->setFocus(Qt::TabFocusReason);
}

}  // namespace zentrik
