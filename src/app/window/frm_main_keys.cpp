// The window by keyboard: what its keys start, and the order in which Tab and F6 go through it.

#include "app/window/frm_main.h"
#include "basics/numbers.h"
#include "model/store.h"
#include "ui/commands/copy_paste.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QScrollBar>
#include <QShortcut>
#include <QStatusTipEvent>
#include <QToolBar>
#include <algorithm>

namespace zentrik {

namespace {

const CommandRow& commandOf(const KeyRow& key) {
    const auto rows = commandRows();
    return *std::find_if(rows.begin(), rows.end(),
                         [&](const CommandRow& row) { return std::string_view(row.key) == key.control; });
}

// What Tab can reach in a bar, left to right.
std::vector<QWidget*> stopsOf(const QToolBar& bar) {
    std::vector<QWidget*> stops;
    for (QAction* action : bar.actions()) {
        QWidget* widget = bar.widgetForAction(action);
        if (widget != nullptr && (widget->focusPolicy() & Qt::TabFocus) != 0) stops.push_back(widget);
    }
    return stops;
}

std::string selectionText(const Editor& ed) {
    std::string text;
    if (nodeExists(ed, ed.SelectedNode)) text = "Selected node: " + std::to_string(ed.SelectedNode) + ". ";
    if (linkExists(ed, ed.SelectedLink))
        text += "Selected link: " + std::to_string(ed.SelectedLink) +
                (linkAt(ed, ed.SelectedLink).Animator ? ", an animator. " : ". ");
    return text.empty() ? "Nothing is selected. " : text;
}

std::string phaseText(const Editor& ed) {
    if (!linkExists(ed, ed.SelectedLink) || !linkAt(ed, ed.SelectedLink).Animator)
        return "No disc is selected.";
    return "Link " + std::to_string(ed.SelectedLink) + " at " + realText(linkAt(ed, ed.SelectedLink).Angle) +
           " degrees.";
}

void describe(QWidget& area, const std::string& text) {
    const QString said = QString::fromStdString(text);
    if (area.accessibleDescription() != said) area.setAccessibleDescription(said);
}

}  // namespace

void frmMain::connectKeys() {
    const auto connectTo = [this](const char* keys, QWidget* where, Qt::ShortcutContext context,
                                  const KeyRow& row) {
        auto* shortcut = new QShortcut(QKeySequence(keys), where);
        shortcut->setContext(context);
        connect(shortcut, &QShortcut::activated, this, [this, &row] { pressKey(row); });
    };
    for (const KeyRow& row : keyRows()) {
        if (row.act == KeyAct::pointer || row.act == KeyAct::presets) continue;
        if (row.area == KeyArea::window) connectTo(row.keys, this, Qt::WindowShortcut, row);
        if (row.area == KeyArea::areas || row.area == KeyArea::scene)
            connectTo(row.keys, picS_, Qt::WidgetShortcut, row);
        if (row.area == KeyArea::areas || row.area == KeyArea::strip)
            connectTo(row.keys, picPhase_, Qt::WidgetShortcut, row);
        if (row.control == nullptr) continue;
        auto* control = bars_.Toolbar1->findChild<QWidget*>(row.control);
        control->setStatusTip(QString("%1 (%2)").arg(control->accessibleName().section(":", 0, 0), row.keys));
    }
}

void frmMain::pressKey(const KeyRow& row) {
    switch (row.act) {
        case KeyAct::press:
            return bars_.commandPressed(commandOf(row));
        case KeyAct::command:
            return runKey(row);
        case KeyAct::openList:
            bars_.lstSaved->setFocus(Qt::ShortcutFocusReason);
            return bars_.lstSaved->showPopup();
        case KeyAct::quit:
            close();
            return;
        case KeyAct::help:
            return host_.showManual();
        case KeyAct::nextPart:
            return goToPart(1);
        case KeyAct::previousPart:
            return goToPart(-1);
        case KeyAct::copy:
            return follow(copyObject);
        case KeyAct::paste:
            return perform("Object pasted", [this](Editor& ed, Host&) {
                pasteObject(ed, QApplication::clipboard()->text().toStdString(), picS_->pointerPlace());
            });
        case KeyAct::copyPicture:
            return sharing_.begin(Share::copyPicture);
        case KeyAct::pointer:
        case KeyAct::presets:
            return;  // the scene's and the buttons' own
    }
}

// The scene's pointer goes where the selection went.
void frmMain::runKey(const KeyRow& row) {
    const std::int32_t node = ed_.SelectedNode, link = ed_.SelectedLink;
    run(Event::command, row.what, row.command);
    if (row.area != KeyArea::scene) return;
    if (const Node* now = selectedNode(ed_); now != nullptr && ed_.SelectedNode != node)
        picS_->pointTo({static_cast<float>(now->X), static_cast<float>(now->Y)});
    if (const Link* now = selectedLink(ed_);
        now != nullptr && ed_.SelectedLink != link && endsExist(ed_, *now))
        picS_->pointTo(linkMidpoint(ed_, *now));
}

void frmMain::goToPart(int step) {
    std::vector<QWidget*> parts{bars_.Toolbar1, bars_.Toolbar2, picS_};
    if (Frame1_->isVisible()) parts.push_back(Frame1_);
    if (picPhase_->isVisible()) parts.push_back(picPhase_);
    const QWidget* focus = QApplication::focusWidget();
    const auto here = std::find_if(parts.begin(), parts.end(), [&](const QWidget* part) {
        return part == focus || (focus != nullptr && part->isAncestorOf(focus));
    });
    const auto count = static_cast<std::ptrdiff_t>(parts.size());
    const std::ptrdiff_t at = here == parts.end() ? (step > 0 ? -1 : 0) : here - parts.begin();
    QWidget* part = parts[static_cast<std::size_t>((at + step + count) % count)];
    QWidget* stop = part;
    if (const auto* bar = qobject_cast<QToolBar*>(part))
        for (QWidget* candidate : stopsOf(*bar))
            if (stop == part && candidate->isVisible() && candidate->isEnabled()) stop = candidate;
    stop->setFocus(Qt::TabFocusReason);
}

// As seen: from the command toolbar down to the phase strip.
void frmMain::chooseTabOrder() {
    std::vector<QWidget*> order = stopsOf(*bars_.Toolbar1);
    for (QWidget* stop : stopsOf(*bars_.Toolbar2)) order.push_back(stop);
    for (QWidget* area :
         {static_cast<QWidget*>(picS_), static_cast<QWidget*>(Frame1_), static_cast<QWidget*>(picPhase_)})
        order.push_back(area);
    for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

// A button's status tip takes status panel 5 while the pointer is over the button.
bool frmMain::event(QEvent* event) {
    if (event->type() != QEvent::StatusTip) return QMainWindow::event(event);
    const QString tip = static_cast<QStatusTipEvent*>(event)->tip();
    panels_.panel(5).show(tip.isEmpty() ? QString::fromStdString(panel(ed_, 5)) : tip);
    return true;
}

// For who hears the scene and the strip.
void frmMain::showSelection() {
    describe(*picS_, selectionText(ed_));
    describe(*picPhase_, phaseText(ed_));
}

}  // namespace zentrik
