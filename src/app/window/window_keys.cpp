#include "app/window/window_keys.h"

#include "model/store.h"
#include "ui/commands/copy_paste.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QShortcut>
#include <QToolBar>
#include <algorithm>
#include <functional>
#include <map>

namespace zentrik {

namespace {

const CommandRow& commandOf(const KeyRow& key) {
    const auto rows = commandRows();
    return *std::find_if(rows.begin(), rows.end(),
                         [&](const CommandRow& row) { return std::string_view(row.key) == key.control; });
}

void connectKey(const char* keys, QWidget& where, Qt::ShortcutContext context,
                const std::function<void()>& press) {
    auto* shortcut = new QShortcut(QKeySequence(keys), &where);
    shortcut->setContext(context);
    QObject::connect(shortcut, &QShortcut::activated, shortcut, press);
}

}  // namespace

WindowKeys::WindowKeys(QWidget& window, Events& events, Sharing& sharing, Plotting& plotting,
                       const WindowParts& parts)
    : events_(events), parts_(parts) {
    const std::map<KeyAct, std::function<void(const KeyRow&)>> acts{
        {KeyAct::press, [this](const KeyRow& row) { parts_.bars.commandPressed(commandOf(row)); }},
        {KeyAct::command, [this](const KeyRow& row) { runCommand(row); }},
        {KeyAct::travel, [&](const KeyRow& row) { events.travel(row.steps); }},
        {KeyAct::undo, [&](const KeyRow&) { events.undo(); }},
        {KeyAct::redo, [&](const KeyRow&) { events.redo(); }},
        {KeyAct::openList, [this](const KeyRow&) { openList(); }},
        {KeyAct::goToPart, [this](const KeyRow& row) { parts_.goTo(row.steps); }},
        {KeyAct::copy, [&](const KeyRow&) { events.follow(copyObject); }},
        {KeyAct::paste, [this](const KeyRow&) { paste(); }},
        {KeyAct::copyPicture, [&](const KeyRow&) { sharing.begin(Share::copyPicture); }},
        {KeyAct::plot, [&](const KeyRow&) { plotting.toggle(); }},
        {KeyAct::plotSelected, [&](const KeyRow&) { plotting.plotSelected(); }},
        {KeyAct::help, [&](const KeyRow&) { events.host.showManual(); }},
        {KeyAct::quit, [&](const KeyRow&) { window.close(); }},
    };
    for (const KeyRow& row : keyRows()) {
        const auto act = acts.find(row.act);
        if (act == acts.end()) continue;  // the scene's and the buttons' own
        const bool areas = row.area == KeyArea::areas;
        const auto press = [act = act->second, &row] { act(row); };
        if (row.area == KeyArea::window) connectKey(row.keys, window, Qt::WindowShortcut, press);
        if (areas || row.area == KeyArea::scene)
            connectKey(row.keys, parts_.scene, Qt::WidgetShortcut, press);
        if (areas || row.area == KeyArea::strip)
            connectKey(row.keys, parts_.strip, Qt::WidgetShortcut, press);
        if (row.control == nullptr) continue;
        auto* control = parts_.bars.Toolbar1->findChild<QWidget*>(row.control);
        control->setStatusTip(QString("%1 (%2)").arg(control->accessibleName().section(":", 0, 0), row.keys));
    }
}

// The scene's pointer goes where the selection went.
void WindowKeys::runCommand(const KeyRow& row) {
    Editor& ed = events_.ed;
    const std::int32_t node = ed.SelectedNode, link = ed.SelectedLink;
    events_.run(Event::command, row.what, row.command);
    if (row.area != KeyArea::scene) return;
    if (const Node* now = selectedNode(ed); now != nullptr && ed.SelectedNode != node)
        parts_.scene.pointTo({static_cast<float>(now->X), static_cast<float>(now->Y)});
    if (const Link* now = selectedLink(ed); now != nullptr && ed.SelectedLink != link && endsExist(ed, *now))
        parts_.scene.pointTo(linkMidpoint(ed, *now));
}

void WindowKeys::openList() {
    parts_.bars.lstSaved->setFocus(Qt::ShortcutFocusReason);
    parts_.bars.lstSaved->showPopup();
}

void WindowKeys::paste() {
    events_.perform("Object pasted", [this](Editor& ed, Host&) {
        pasteObject(ed, QApplication::clipboard()->text().toStdString(), parts_.scene.pointerPlace());
    });
}

}  // namespace zentrik
