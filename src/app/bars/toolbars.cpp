#include "app/bars/toolbars.h"

#include "app/bars/icons.h"
#include "app/bars/preset_keys.h"
#include "basics/units.h"
#include "display/canvas/canvas.h"
#include "display/canvas/lettering.h"
#include "display/overlays.h"
#include "model/store.h"
#include "ui/commands/layout.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <span>
#include <utility>

namespace zentrik {

namespace {

// Of drop-down buttons; those of the global values are as far apart as the read-out prints them.
constexpr int arrowWidth = 12, globalArrowWidth = 16;
constexpr int smallButton = 22, largeButton = 28;  // widths
constexpr int smallIcon = 20, largeIcon = 24;
constexpr int widthForLarge = 1200;  // of the window
constexpr int smallList = 132, largeList = 168;

// Works on light and dark themes, since every tint is half transparent.
constexpr const char* style = R"(
    QToolBar { border: none; spacing: 0px; padding: 0px 2px; }
    QToolBar::separator { width: 1px; margin: 6px 3px; background: rgba(127, 127, 127, 90); }
    QToolButton { border: 1px solid transparent; border-radius: 4px; padding: 0px; }
    QToolButton:hover { background: rgba(127, 127, 127, 45); }
    QToolButton:pressed { background: rgba(127, 127, 127, 90); }
    QToolButton:checked { background: rgba(47, 127, 214, 55); border-color: rgba(47, 127, 214, 150); }
    QToolButton:focus { border-color: rgb(47, 127, 214); }
    QToolButton[popupMode="1"] { padding-right: 12px; }
    QToolButton::menu-button { border: none; width: 12px; }
)";

QToolBar* makeBar(const char* name, const char* title, QWidget& window) {
    auto* bar = new QToolBar(title, &window);
    bar->setObjectName(name);
    bar->setStyleSheet(style);
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setFixedHeight(Toolbars::height);
    return bar;
}

template <class List>
List* makeList(const char* name, const char* title, QWidget& window) {
    auto* list = new List(&window);
    list->setObjectName(name);
    list->setAccessibleName(title);
    list->setToolTip(title);
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMaxVisibleItems(24);
    return list;
}

QToolButton* makeButton(const char* key, bool checkable, QToolBar& bar) {
    auto* button = new QToolButton(&bar);
    button->setObjectName(key);
    button->setCheckable(checkable);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);  // a click leaves the focus with the scene
    return button;
}

void setTip(QToolButton& button, const QString& tip) {
    if (button.toolTip() != tip) button.setToolTip(tip);
}

// What a button is, as its tip says before it tells a value.
QString nameOf(const PropertyRow& row) {
    static const Tips plain;
    return row.tip != nullptr ? QString::fromStdString(plain.*row.tip) : row.fixedTip;
}

// What it shows; nothing where there is no node or link to tell of.
QString valueOf(const PropertyRow& row, const Editor& ed) {
    const bool has = row.owner == Owner::node   ? nodeExists(ed, ed.SelectedNode)
                     : row.owner == Owner::link ? linkExists(ed, ed.SelectedLink)
                                                : true;
    return row.access != nullptr && has ? QString::fromStdString(row.access->text(ed)) : QString();
}

// A list's accessible name is its text; what it is for, says a label, which nobody needs to see.
void addLabel(QWidget& list) {
    auto* label = new QLabel(list.accessibleName(), list.parentWidget());
    label->setObjectName(list.objectName() + "Label");
    label->setBuddy(&list);
    label->hide();
}

// Fills a bar from its table: buttons as add places them, groups between separators, two of which in a row
// close one, and the list once where the rows leave room.
template <class Row, class Add>
void build(QToolBar& bar, std::span<const Row> rows, QWidget& list, Add add) {
    bool groupOpen = false, roomTaken = false;
    for (const Row& row : rows) {
        if (row.style == ButtonStyle::separator) {
            if (std::exchange(groupOpen, false)) bar.addSeparator();
            continue;
        }
        groupOpen = true;
        if (row.isButton())
            add(row, *makeButton(row.key, row.pressed != nullptr, bar));
        else if (!std::exchange(roomTaken, true)) {
            bar.addWidget(&list);
            addLabel(list);
        }
    }
}

void fill(QComboBox& list, const std::vector<std::string>& names) {
    bool same = static_cast<std::size_t>(list.count()) == names.size();
    for (int i = 0; same && i < list.count(); ++i)
        same = list.itemText(i) == QString::fromStdString(names[static_cast<std::size_t>(i)]);
    if (same) return;
    list.clear();
    for (const std::string& name : names) list.addItem(QString::fromStdString(name));
}

}  // namespace

Toolbars::Toolbars(QWidget& window)
    : Toolbar1(makeBar("Toolbar1", "Commands", window)),
      Toolbar2(makeBar("Toolbar2", "Properties", window)),
      lstSaved(makeList<ProjectList>("lstSaved",
                                     "Projects: choose one, or type a name and press Enter to save", window)),
      lstSprites(makeList<QComboBox>("lstSprites", "Sprite of the selected node", window)) {
    lstSprites->setFocusPolicy(Qt::TabFocus);
    buildCommands();
    buildProperties();
    drawIcons();
}

void Toolbars::buildCommands() {
    build(*Toolbar1, commandRows(), *lstSaved, [this](const CommandRow& row, QToolButton& button) {
        setTip(button, row.tip);
        button.setAccessibleName(row.tip);
        QObject::connect(&button, &QToolButton::clicked, Toolbar1, [this, &row] { commandPressed(row); });
        Toolbar1->addWidget(&button);
        commands_.push_back({&row, &button});
    });
}

void Toolbars::buildProperties() {
    const auto filler = [this] {
        auto* empty = new QWidget(Toolbar2);
        empty->setFixedWidth(0);
        Toolbar2->addWidget(empty);
        return empty;
    };
    lstSprites->setFixedWidth(smallList);
    fillers_ = {filler(), lstSprites, nullptr};
    build(*Toolbar2, propertyRows(), *lstSprites, [&](const PropertyRow& row, QToolButton& button) {
        if (row.owner == Owner::link && fillers_[2] == nullptr) fillers_[2] = filler();
        QObject::connect(&button, &QToolButton::clicked, Toolbar2, [this, &row] { propertyPressed(row); });
        const bool dropDown = row.style == ButtonStyle::dropDown;
        if (dropDown) addPresets(button, row);
        button.setAccessibleName(nameOf(row));
        button.setIconSize({smallIcon, smallIcon});
        const int arrow = row.owner == Owner::global ? globalArrowWidth : arrowWidth;
        button.setFixedSize(smallButton + (dropDown ? arrow : 0), height - 4);
        properties_.push_back({&row, &button, Toolbar2->addWidget(&button)});
    });
}

void Toolbars::addPresets(QToolButton& button, const PropertyRow& row) {
    auto* menu = new QMenu(&button);
    for (const std::string& text : presetTexts(row)) {
        QAction* preset = menu->addAction(QString::fromStdString(text));
        QObject::connect(preset, &QAction::triggered, menu, [this, &row, text] { presetChosen(row, text); });
    }
    button.setMenu(menu);
    openMenuByKeys(button);
    button.setPopupMode(QToolButton::MenuButtonPopup);
}

void Toolbars::followPalette() {
    // A style sheet keeps the colours it was first applied with.
    for (QToolBar* bar : {Toolbar1, Toolbar2}) {
        bar->setStyleSheet({});
        bar->setStyleSheet(style);
    }
    lstSaved->setPalette({});  // shown in the scene's background colour with the next record
    drawIcons();
}

void Toolbars::drawIcons() {
    const QPalette palette = QApplication::palette();
    for (const CommandButton& it : commands_) {
        const bool starts = it.row->pressed == &Buttons::start;
        it.button->setIcon(themedIcon(it.row->icon, palette, starts ? "stop" : ""));
    }
    for (const PropertyButton& it : properties_) it.button->setIcon(themedIcon(it.row->icon, palette));
}

void Toolbars::fit(int width) {
    const bool large = width >= widthForLarge;
    const int icon = large ? largeIcon : smallIcon;
    for (const CommandButton& it : commands_) {
        it.button->setIconSize({icon, icon});
        it.button->setFixedSize(large ? largeButton : smallButton, height - 4);
    }
    lstSaved->setFixedWidth(large ? largeList : smallList);
    Toolbar2->resize(width, height);  // it stands in no layout that would
    alignProperties();
}

void Toolbars::alignProperties() {
    constexpr struct {
        const char* key;
        double place;  // of its value in the read-out, twips of the scene
    } firsts[] = {{"gravity", readoutLeft}, {"mass", readoutNode}, {"k", readoutLink}};
    for (std::size_t i = 0; i < fillers_.size(); ++i) {
        const auto first = std::find_if(
            properties_.begin(), properties_.end(),
            [&](const PropertyButton& it) { return std::string_view(it.row->key) == firsts[i].key; });
        Toolbar2->layout()->activate();
        const int missing = pixels(sceneLeft + firsts[i].place) - first->button->x();
        fillers_[i]->setFixedWidth(std::max(fillers_[i]->minimumWidth() + missing, 0));
    }
    Toolbar2->layout()->activate();
}

void Toolbars::show(const Editor& ed) {
    for (const CommandButton& it : commands_) {
        if (it.row->pressed == nullptr) continue;
        it.button->setChecked(ed.buttons.*it.row->pressed);
        if (it.row->pressed == &Buttons::start) setTip(*it.button, QString::fromStdString(ed.tips.start));
    }
    for (const PropertyButton& it : properties_) {
        const PropertyRow& row = *it.row;
        if (row.pressed != nullptr) it.button->setChecked(ed.buttons.*row.pressed);
        setTip(*it.button, row.tip != nullptr ? QString::fromStdString(ed.tips.*row.tip) : row.fixedTip);
        if (const QString value = valueOf(row, ed); it.button->accessibleDescription() != value)
            it.button->setAccessibleDescription(value);
        it.place->setVisible(row.isVisible(ed));
        if (row.owner == Owner::node) it.button->setEnabled(ed.nodeControls);
        if (row.owner == Owner::link) it.button->setEnabled(ed.linkControls);
    }
    showLists(ed);
}

void Toolbars::showLists(const Editor& ed) {
    const QSignalBlocker quietSaved(lstSaved), quietSprites(lstSprites);
    const QString text = QString::fromStdString(ed.savedText);
    fill(*lstSaved, ed.savedNames);
    if (lstSaved->currentText() != text) lstSaved->setEditText(text);
    fill(*lstSprites, ed.spriteNames);
    lstSprites->setCurrentIndex(ed.spriteEntry);
    lstSprites->setEnabled(ed.nodeControls);

    const QColor back = colourOf(ed.BackColor);
    QPalette palette = lstSaved->palette();
    if (palette.color(QPalette::Base) == back) return;
    palette.setColor(QPalette::Base, back);
    palette.setColor(QPalette::Text, colourOf(legibleInk(black, ed.BackColor)));
    lstSaved->setPalette(palette);
}

}  // namespace zentrik
