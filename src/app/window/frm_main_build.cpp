// How the main window is put together: its bars, its areas and what their events start.

#include "app/bars/project_menu.h"
#include "app/bars/project_tip.h"
#include "app/window/frm_main.h"
#include "edit/mouse.h"
#include "edit/phase_mouse.h"
#include "effects/fireworks.h"
#include "library/library.h"
#include "model/redraw.h"
#include "model/store.h"
#include "ui/commands/layout.h"
#include "ui/commands/online.h"
#include "ui/commands/sprite_commands.h"
#include "ui/commands/time_travel.h"
#include "ui/undo.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QScrollBar>
#include <QShortcut>
#include <QToolBar>
#include <QWheelEvent>

namespace zentrik {

namespace {

// A caption as it reads: without the mark of its access key.
std::string plainCaption(const char* caption) { return QString(caption).remove('&').toStdString(); }

// A label as it reads alone: "Gravity: " is "Gravity". Buttons without presets have their tip.
std::string plainLabel(const PropertyRow& row) {
    return QString(row.label[0] != '\0' ? row.label : row.fixedTip).remove(": ").toStdString();
}

}  // namespace

void frmMain::buildMenus() {
    menuBar()->setNativeMenuBar(false);
    QMenu* menu = nullptr;
    for (const MenuRow& row : menuRows()) {
        if (row.isMenu()) {
            menu = menuBar()->addMenu(row.caption);
            menu->setObjectName(row.name);
            menu->menuAction()->setObjectName(row.name);
            continue;
        }
        QAction* action = row.isSeparator() ? menu->addSeparator() : menu->addAction(row.caption);
        action->setObjectName(row.name);
        if (row.isSeparator()) continue;
        if (row.shortcut != nullptr) action->setShortcut(QKeySequence(row.shortcut));
        action->setCheckable(row.mark != nullptr);
        if (row.mark != nullptr) marks_.push_back({&row, action});
        connect(action, &QAction::triggered, this, [this, &row] {
            perform(plainCaption(row.caption), [&](Editor& ed, Host& host) { chooseMenu(ed, host, row); });
        });
    }
}

void frmMain::buildClient() {
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
        list, [this](const ProjectMenuRow& row) { return row.isShown == nullptr || row.isShown(ed_, host_); },
        [this](const ProjectMenuRow& row) {
            perform(row.what, row.command);
            picS_->setFocus();
        });
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

void frmMain::fillCorner() {
    auto* corner = new QWidget(this);
    auto* row = new QHBoxLayout(corner);
    row->setContentsMargins(0, 0, 4, 0);
    row->setSpacing(0);
    row->addWidget(undo_);
    row->addWidget(share_);
    menuBar()->setCornerWidget(corner);
}

void frmMain::connectSharing() {
    share_->chosen = [this](Share what) { sharing_.begin(what); };
    sharing_.change = [this](const std::function<void(Editor&)>& how) {
        follow([&](Editor& ed, Host&) { how(ed); });
    };
}

void frmMain::connectUndo() {
    const auto take = [this](void (*way)(Editor&, History&)) {
        follow([&](Editor& ed, Host&) { retrace(ed, history_, timeline_, way); });
        leaveList();
    };
    undo_->undo = [take] { take(undoLast); };
    undo_->redo = [take] { take(redoNext); };
}

void frmMain::connectTime() {
    struct Key {
        const char* key;
        int steps;
    };
    for (const Key& it :
         {Key{"Ctrl+Left", -1}, {"Ctrl+Right", 1}, {"Ctrl+Shift+Left", -100}, {"Ctrl+Shift+Right", 100}})
        connect(new QShortcut(QKeySequence(it.key), this), &QShortcut::activated, this,
                [this, steps = it.steps] { goThroughTime(steps); });
    panels_.panel(4).installEventFilter(this);
    panels_.panel(4).setTip(
        "Turn the wheel here, or press Ctrl+Left and Ctrl+Right, to go through the run step by step; with "
        "Shift a hundred steps");
}

void frmMain::goThroughTime(int steps) {
    follow([&](Editor& ed, Host&) { travelBy(ed, history_, timeline_, steps); });
}

// A notch of the wheel is a step; away from the person is on.
void frmMain::turnTime(const QWheelEvent& event) {
    wheelTurn_ += event.angleDelta().y() + event.angleDelta().x();
    const int notches = wheelTurn_ / QWheelEvent::DefaultDeltasPerStep;
    wheelTurn_ %= QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0) goThroughTime(notches * (event.modifiers().testFlag(Qt::ShiftModifier) ? 100 : 1));
}

void frmMain::connectRecovery() {
    recovery_ = new RecoveryKeeper(ed_.programFolder, this);
    recovery_->failed = [this](const std::string& problem) {
        panel(ed_, 5) = "What is not saved could not be kept safe: " + problem;
        showRecord();
    };
}

void frmMain::connectViews() {
    const auto calls = [this](const char* what, auto press, auto drag, auto release, auto twice) {
        MouseCalls mouse;
        mouse.down = [this, what, press](int b, float x, float y) {
            run(Event::mouse, what, [&](Editor& ed, Host&) { press(ed, b, x, y); });
        };
        mouse.move = [this, what, drag, release](float x, float y, bool leftHeld) {
            const auto move = [&](Editor& ed, Host&) { drag(ed, x, y); };
            // A box, a hidden strip or another window took the release.
            if ((ed_.MouseIsDown || ed_.PhaseDragging) && !leftHeld) {
                const auto let = [&](Editor& ed, Host&) { release(ed, leftButton, x, y); };
                run(Event::mouse, what, let);
            }
            if (ed_.MouseIsDown || ed_.PhaseDragging)
                run(Event::mouse, what, move);
            else
                point(move);
        };
        mouse.up = [this, what, release](int b, float x, float y) {
            run(Event::mouse, what, [&](Editor& ed, Host&) { release(ed, b, x, y); });
        };
        mouse.doubleClick = [this, twice] {
            run(Event::mouse, "Animator switched", [&](Editor& ed, Host&) { twice(ed); });
        };
        return mouse;
    };
    picS_->mouse = calls(
        "Node moved", picS_MouseDown, [](Editor& ed, float x, float y) { picS_MouseMove(ed, 0, x, y); },
        picS_MouseUp, picS_DblClick);
    picPhase_->mouse = calls(
        "Phase turned", picPhase_MouseDown, picPhase_MouseMove,
        [](Editor& ed, int, float, float) { picPhase_MouseUp(ed); }, picPhase_DblClick);
    picS_->mouse.leave = [this] {
        if (ed_.rubberBand) follow([](Editor& ed, Host&) { redrawScene(ed); });
    };
    frmPath_->clicked = [this] { follow([](Editor& ed, Host&) { clearPath(ed); }); };
    frmPath_->closed = [this] { follow([](Editor& ed, Host&) { ed.marks.mnuDisplayPath = false; }); };
    host_.placePathWindow = [this](bool visible) { placePathWindow(visible); };
    host_.layOutWindow = [this] { layOutWindow(); };
    host_.messageFetched = [this](const QString& text, const QString& problem) {
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
    connect(&Timer1_, &QTimer::timeout, this,
            [this] { run(Event::timer, "", [this](Editor& ed, Host&) { tick(timeline_, ed); }); });
    timerFireWorks_.setObjectName("timerFireWorks");
    timerFireWorks_.setParent(this);
    connect(&timerFireWorks_, &QTimer::timeout, this, [this] {
        if (ed_.Timer1.enabled)  // the show is part of the run
            run(Event::timer, "", [this](Editor& ed, Host&) {
                timerFireWorks_Timer(ed);
                noteEdit(timeline_);
            });
    });
}

}  // namespace zentrik
