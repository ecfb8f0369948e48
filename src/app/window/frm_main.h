#pragma once
#include "app/bars/sprite_browser.h"
#include "app/bars/status_panels.h"
#include "app/bars/toolbars.h"
#include "app/bars/undo_buttons.h"
#include "app/boxes/desktop_host.h"
#include "app/keeping/recovery_keeper.h"
#include "app/keeping/settings_store.h"
#include "app/sharing/sharing.h"
#include "app/views/path_window.h"
#include "app/views/views.h"
#include "history/history.h"
#include "history/timeline.h"
#include "model/editor.h"
#include "model/pointing.h"
#include "ui/commands/time_travel.h"
#include "ui/keys.h"
#include "ui/menus.h"

#include <QMainWindow>
#include <QTimer>

namespace zentrik {

// The main window: turns events into procedures on the record, and shows the record after each.
class frmMain : public QMainWindow {
public:
    // folder: where zoo and sprites are; empty for the program's own.
    explicit frmMain(const QString& folder = {});

    const Editor& editor() const { return ed_; }
    const History& history() const { return history_; }
    // Runs a procedure as an event of the window does: not while a box is open, as a step that can be
    // undone, which is called `what`, and followed by showing the record.
    template <class Procedure>
    void perform(const std::string& what, Procedure procedure) {
        run(Event::command, what, procedure);
        leaveList();
    }

    // Makes files the model, one after the other; once an open box is answered.
    void open(const QStringList& files);
    // Before the other windows.
    void comeForward();
    // Offers what programs that are gone had not saved, one box for each.
    void offerLeftCopies();
    // What closing the window does to the work, without a question and whatever box is open. False when it
    // could not be filed; then a recovery copy holds it.
    bool keepWork();
    // The same as the last thing the program does. A window that was closed has done it.
    void keepWorkAndEnd();

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct MenuEntry {
        const MenuRow* row;
        QAction* action;
    };

    Editor ed_;
    History history_;
    Timeline timeline_;
    DesktopHost host_;
    UserSettings settings_;
    RecoveryKeeper* recovery_ = nullptr;
    bool ended_ = false;
    int wheelTurn_ = 0;  // over the clock, eighths of a degree
    std::vector<MenuEntry> marks_;
    StatusPanels panels_;
    QTimer Timer1_, timerFireWorks_;
    QWidget* const client_;
    Toolbars bars_;
    UndoButtons* const undo_;
    ShareButton* const share_;
    Sharing sharing_;
    SceneView* const picS_;
    PhaseView* const picPhase_;
    SpriteBrowser* const Frame1_;
    PathWindow* const frmPath_;
    QWindow* followed_ = nullptr;  // whose screen bounds the window's size

    void buildMenus();
    void buildClient();
    void connectBars();
    void connectLists();
    void fillCorner();
    void connectUndo();
    void connectSharing();
    void connectTime();
    void connectViews();
    void connectTimers();
    void connectRecovery();
    void connectDrops();
    void connectKeys();
    void chooseTabOrder();

    void Form_Load(const QString& folder);
    void readSprites();
    void takeDrop(const QUrl& url, QPoint at);
    void refuseDrop(const std::string& why);
    bool storeWork(Host& host);
    void restorePlacement(const Placement& placement);
    void followScreen();
    void placePathWindow(bool visible);
    void fitBars();
    int roomTaken() const;
    void layOutWindow();
    void goThroughTime(int steps);
    void turnTime(const QWheelEvent& event);
    void pressKey(const KeyRow& row);
    void runKey(const KeyRow& row);
    void goToPart(int step);
    void showSelection();
    template <class Procedure>
    void run(Event event, const std::string& what, Procedure procedure) {
        follow([&](Editor& ed, Host& host) {
            beginEvent(history_, ed, event);
            noteBegin(timeline_, history_);
            procedure(ed, host);
            endEvent(history_, ed, event, what);
            followEvent(timeline_, ed, history_, event);
        });
    }
    // Runs what changes nothing that undo knows.
    template <class Procedure>
    void follow(Procedure procedure) {
        if (host_.isAsking()) return;
        procedure(ed_, host_);
        picS_->recordChanged();
        picPhase_->recordChanged();
        showRecord();
    }
    // Runs what the pointer does that drags nothing.
    template <class Procedure>
    void point(Procedure procedure) {
        if (host_.isAsking()) return;
        const Pointing pointing(ed_);
        procedure(ed_, host_);
        pointing.end(ed_, picS_->isCurrent(), picPhase_->isCurrent());
        showRecord();
    }

    // After a command the keys are the scene's again.
    void leaveList() {
        if (bars_.lstSaved->hasFocus()) picS_->setFocus();
    }

    void showRecord();
    void showTitle();
    void showLayout();
    void showTimers();
};

}  // namespace zentrik
