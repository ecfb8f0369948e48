#pragma once
#include "app/bars/share_button.h"
#include "app/bars/status_panels.h"
#include "app/bars/undo_buttons.h"
#include "app/keeping/recovery_keeper.h"
#include "app/keeping/settings_store.h"
#include "app/sharing/sharing.h"
#include "app/views/path_window.h"
#include "app/window/drops.h"
#include "app/window/events.h"
#include "app/window/menu_bar.h"
#include "app/window/plotting.h"
#include "app/window/time_wheel.h"
#include "app/window/window_keys.h"
#include "app/window/window_parts.h"
#include "app/window/window_place.h"

#include <QMainWindow>
#include <QTimer>

namespace zentrik {

// The main window: turns events into procedures on the record, and shows the record after each.
class frmMain : public QMainWindow {
public:
    // folder: where zoo and sprites are; empty for the program's own.
    explicit frmMain(const QString& folder = {});

    const Editor& editor() const { return ed_; }
    const History& history() const { return events_.history; }
    // Runs a procedure as an event of the window, see Events.
    template <class Procedure>
    void perform(const std::string& what, Procedure procedure) {
        events_.perform(what, procedure);
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
    Events events_;
    Editor& ed_;
    UserSettings settings_;
    RecoveryKeeper* recovery_ = nullptr;
    bool ended_ = false;
    MenuBar menus_;
    StatusPanels panels_;
    TimeWheel wheel_;
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
    const WindowParts parts_;
    WindowPlace place_;
    Plotting plotting_;
    Drops drops_;
    const WindowKeys keys_;

    void buildAreas();
    void fillCorner();
    void connectBars();
    void connectLists();
    void connectProjectList();
    void connectViews();
    void connectHost();
    void connectTimers();
    void connectOutside();

    void Form_Load(const QString& folder);
    void readSprites();
    bool storeWork(Host& host);
    void fitBars();
    int roomTaken() const;
    void layOutWindow();

    void showRecord();
    void showTitle();
    void showLayout();
    void showTimers();
};

}  // namespace zentrik
