// How the parts of the main window are put together, and what their events start.

#include "app/bars/project_menu.h"
#include "app/bars/project_tip.h"
#include "app/window/frm_main.h"
#include "app/window/mouse_events.h"
#include "effects/fireworks.h"
#include "library/library.h"
#include "model/redraw.h"
#include "model/store.h"
#include "ui/commands/online.h"
#include "ui/commands/sprite_commands.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QToolBar>

namespace zentrik {

namespace {

// A label as it reads alone: "Gravity: " is "Gravity". Buttons without presets have their tip.
std::string plainLabel(const PropertyRow& row) {
    return QString(row.label[0] != '\0' ? row.label : row.fixedTip).remove(": ").toStdString();
}

}  // namespace

void frmMain::buildAreas() {
    events_.scene = picS_;
    events_.strip = picPhase_;
    events_.showRecord = [this] { showRecord(); };
    // After a command the keys are the scene's again.
    events_.commandDone = [this] {
        if (bars_.lstSaved->hasFocus()) picS_->setFocus();
    };
    addToolBar(Qt::TopToolBarArea, bars_.Toolbar1);
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(client_);
    bars_.Toolbar2->setParent(client_);
    bars_.Toolbar2->move(0, 0);
    Frame1_->setVisible(false);
    Frame1_->HScroll1->setVisible(false);
    picPhase_->setVisible(false);
}

void frmMain::connectBars() {
    menus_.chosen = [this](const MenuRow& row) {
        perform(plainCaption(row), [&](Editor& ed, Host& host) { chooseMenu(ed, host, row); });
    };
    bars_.commandPressed = [this](const CommandRow& row) {
        perform(row.tip, [&](Editor& ed, Host& host) { pressCommand(ed, host, row); });
    };
    bars_.propertyPressed = [this](const PropertyRow& row) {
        perform(plainLabel(row), [&](Editor& ed, Host& host) { pressProperty(ed, host, row); });
    };
    bars_.presetChosen = [this](const PropertyRow& row, const std::string& text) {
        perform(plainLabel(row) + " " + text,
                [&](Editor& ed, Host& host) { choosePreset(ed, host, row, text); });
    };
}

void frmMain::connectLists() {
    bars_.lstSprites->installEventFilter(this);
    connect(bars_.lstSprites, &QComboBox::activated, this, [this](int entry) {
        perform("Sprite", [&](Editor& ed, Host&) {
            lstSprites_Click(ed, entry);
            redrawScene(ed);
        });
    });
    Frame1_->pictureClicked = [this](int index) {
        perform("Sprite", [&](Editor& ed, Host&) { imgSprite_Click(ed, index); });
    };
}

void frmMain::connectProjectList() {
    ProjectList& list = *bars_.lstSaved;
    connect(&list, &QComboBox::editTextChanged, this, [this](const QString& text) {
        ed_.savedText = text.toStdString();
        showTitle();
    });
    list.chosen = [this](int entry) {
        perform("Project opened", [&](Editor& ed, Host& host) { lstSaved_Click(ed, host, entry); });
    };
    list.entered = [this] { perform("Project saved", lstSaved_Enter); };
    list.left = [this] { picS_->setFocus(); };
    list.tipOf = [this](const QString& name) {
        return projectTip(ed_.programFolder, name, devicePixelRatioF());
    };
    list.descriptionOf = [this](const QString& name) { return projectTitle(ed_.programFolder, name); };
    attachProjectMenu(
        list,
        [this](const ProjectMenuRow& row) {
            return row.isShown == nullptr || row.isShown(ed_, events_.host);
        },
        [this](const ProjectMenuRow& row) {
            perform(row.what, row.command);
            picS_->setFocus();
        });
}

void frmMain::fillCorner() {
    auto* corner = new QWidget(this);
    auto* row = new QHBoxLayout(corner);
    row->setContentsMargins(0, 0, 4, 0);
    row->setSpacing(0);
    row->addWidget(undo_);
    row->addWidget(plotting_.button);
    row->addWidget(share_);
    menuBar()->setCornerWidget(corner);
    undo_->undo = [this] { events_.undo(); };
    undo_->redo = [this] { events_.redo(); };
    share_->chosen = [this](Share what) { sharing_.begin(what); };
    sharing_.change = [this](const std::function<void(Editor&)>& how) {
        events_.follow([&](Editor& ed, Host&) { how(ed); });
    };
}

void frmMain::connectViews() {
    picS_->mouse = mouseEvents(events_, sceneMouse);
    picPhase_->mouse = mouseEvents(events_, stripMouse);
    picS_->mouse.leave = [this] {
        if (ed_.rubberBand) events_.follow([](Editor& ed, Host&) { redrawScene(ed); });
    };
    picS_->menuWanted = [this](QPoint place, bool byKey) {
        return plotting_.offer(place, byKey ? ed_.SelectedNode : ed_.HoverNode,
                               byKey ? ed_.SelectedLink : ed_.HoverLink);
    };
    frmPath_->clicked = [this] { events_.follow([](Editor& ed, Host&) { clearPath(ed); }); };
    frmPath_->closed = [this] { events_.follow([](Editor& ed, Host&) { ed.marks.mnuDisplayPath = false; }); };
    wheel_.turned = [this](int steps) { events_.travel(steps); };
}

void frmMain::connectHost() {
    DesktopHost& host = events_.host;
    host.placePathWindow = [this](bool visible) {
        if (visible) place_.placeBelow(*frmPath_);
        frmPath_->setVisible(visible);
    };
    host.layOutWindow = [this] { layOutWindow(); };
    host.messageFetched = [this](const QString& text, const QString& problem) {
        // It may arrive while a box is open, and changes nothing but status panel 5.
        if (problem.isEmpty())
            messageArrived(ed_, text.toStdString());
        else
            messageFailed(ed_, problem.toStdString());
        showRecord();
    };
}

void frmMain::connectTimers() {
    Timer1_.setObjectName("Timer1");
    Timer1_.setParent(this);
    Timer1_.setTimerType(Qt::PreciseTimer);
    connect(&Timer1_, &QTimer::timeout, this, [this] {
        events_.run(Event::timer, "", [this](Editor& ed, Host&) { tick(events_.timeline, ed); });
    });
    timerFireWorks_.setObjectName("timerFireWorks");
    timerFireWorks_.setParent(this);
    connect(&timerFireWorks_, &QTimer::timeout, this, [this] {
        if (ed_.Timer1.enabled)  // the show is part of the run
            events_.run(Event::timer, "", [this](Editor& ed, Host&) {
                timerFireWorks_Timer(ed);
                noteEdit(events_.timeline);
            });
    });
}

// What is dropped on the window; a file's address is no project's name.
void frmMain::connectOutside() {
    bars_.lstSaved->setAcceptDrops(false);
    bars_.lstSaved->lineEdit()->setAcceptDrops(false);
    drops_.projectDropped = [this](const QString& file) { open({file}); };
    drops_.spritesChanged = [this] { readSprites(); };
}

}  // namespace zentrik
