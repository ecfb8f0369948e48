#pragma once
#include "app/desktop_host.h"
#include "app/path_window.h"
#include "app/settings_store.h"
#include "app/sprite_browser.h"
#include "app/toolbars.h"
#include "app/views.h"
#include "model/editor.h"
#include "ui/menus.h"

#include <QMainWindow>
#include <QTimer>
#include <array>

class QLabel;

namespace zentrik {

// The main window: turns events into procedures on the record, and shows the record after each.
class frmMain : public QMainWindow {
public:
    // folder: where zoo and sprites are; empty for the program's own.
    explicit frmMain(const QString& folder = {});

    const Editor& editor() const { return ed_; }
    // Runs a procedure as an event of the window does: not while a box is open, and followed by showing
    // the record.
    template <class Procedure>
    void perform(Procedure procedure) {
        if (host_.isAsking()) return;
        procedure(ed_, host_);
        showRecord();
    }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct MenuEntry {
        const MenuRow* row;
        QAction* action;
    };

    Editor ed_;
    DesktopHost host_;
    UserSettings settings_;
    std::vector<MenuEntry> marks_;
    std::array<QLabel*, 5> panels_{};
    QTimer Timer1_, timerFireWorks_;
    QWidget* const client_;
    Toolbars bars_;
    SceneView* const picS_;
    PhaseView* const picPhase_;
    SpriteBrowser* const Frame1_;
    PathWindow* const frmPath_;

    void buildMenus();
    void buildStatusBar();
    void buildClient();
    void connectBars();
    void connectLists();
    void connectViews();
    void connectTimers();

    void Form_Load(const QString& folder);
    void loadSprites();
    void restorePlacement(const Placement& placement);
    void placePathWindow(bool visible);
    bool typedInList(int key);
    void layOutWindow();

    void showRecord();
    void showLayout();
    void showTimers();
};

}  // namespace zentrik
