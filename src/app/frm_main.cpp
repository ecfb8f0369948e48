#include "app/frm_main.h"

#include "app/icons.h"
#include "app/program_folder.h"
#include "edit/mouse.h"
#include "effects/fireworks.h"
#include "model/invariants.h"
#include "model/redraw.h"
#include "model/store.h"
#include "model/units.h"
#include "project/library.h"
#include "project/write_file.h"
#include "project/zoo.h"
#include "sim/run.h"
#include "ui/layout.h"
#include "ui/online.h"
#include "ui/phase_manager.h"
#include "ui/property_toolbar.h"
#include "ui/sprite_commands.h"

#include <QFileInfo>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QToolBar>
#include <QWheelEvent>
#include <cassert>
#include <cmath>

namespace zentrik {

namespace {

int pixels(double twips) { return static_cast<int>(std::lround(twips / twipsPerPixel)); }

QRect pixelRect(const Rect& r) {
    const int left = pixels(r.left), top = pixels(r.top);
    return {left, top, pixels(r.left + r.width) - left, pixels(r.top + r.height) - top};
}

}  // namespace

frmMain::frmMain(const QString& folder)
    : host_(*this),
      client_(new QWidget(this)),
      bars_(*this),
      undo_(new UndoButtons(this)),
      picS_(new SceneView(ed_, client_)),
      picPhase_(new PhaseView(ed_, client_)),
      Frame1_(new SpriteBrowser(client_)),
      frmPath_(new PathWindow(ed_, this)) {
    setObjectName("frmMain");
    setWindowIcon(programIcon());
    buildMenus();
    buildStatusBar();
    buildClient();
    connectBars();
    connectLists();
    connectUndo();
    connectTime();
    connectViews();
    connectTimers();
    Form_Load(folder);
    startHistory(history_, ed_);
    connectRecovery();
    showRecord();
    picS_->setFocus();
}

void frmMain::Form_Load(const QString& folder) {
    ed_.programFolder = (folder.isEmpty() ? programFolder() : folder).toStdString();
    for (const char* kept : {"/zoo", "/backups", "/recovery"}) sweepLeftovers(ed_.programFolder + kept);
    ed_.chance.reseed();
    loadSprites();
    if (!QFileInfo::exists(QString::fromStdString(ed_.programFolder) + "/zoo"))
        panel(ed_, 5) = "The sample projects could not be copied to " + ed_.programFolder;
    const std::string toSay = panel(ed_, 5);
    Placement placement;
    const std::string settingsProblem = settings_.load(ed_, placement);
    restorePlacement(placement);
    layOutWindow();
    showGlobalValues(ed_);
    showCounts(ed_);
    panel(ed_, 3) = "Cycles: 0";
    LoadListOfFileNames(ed_, host_, true);
    if (!ed_.marks.mnuAutoResume) ClearAnimation(ed_);
    DisplayScene(ed_, -1, -1);
    redrawPhaseManager(ed_, 0);
    if (!toSay.empty()) panel(ed_, 5) = toSay;
    if (!settingsProblem.empty())
        host_.messageBox(settingsProblem + "\nThe program goes on with what it could read.", "Zentrik",
                         BoxIcon::exclamation);
}

void frmMain::loadSprites() {
    const SpritePictures& sprites = picS_->loadPictures(ed_.programFolder + "/sprites");
    ed_.spriteNames = sprites.names;
    Frame1_->setPictures(sprites);
    for (const std::string& name : sprites.skipped)
        panel(ed_, 5) += (panel(ed_, 5).empty() ? "No usable picture: " : ", ") + name;
}

void frmMain::restorePlacement(const Placement& placement) {
    setMinimumSize((smallestWidth + twipsPerPixel - 1) / twipsPerPixel,
                   (smallestHeight + twipsPerPixel - 1) / twipsPerPixel);
    const QSize whole = screen()->size();
    if (whole.width() >= minimumWidth() && whole.height() >= minimumHeight()) setMaximumSize(whole);
    const auto extent = [](float twips) {
        return pixels(std::clamp(static_cast<double>(twips), 0.0, 240000.0));
    };
    resize(QSize(extent(placement.width), extent(placement.height)).expandedTo(minimumSize()));
    const auto edge = [](float twips) { return pixels(std::clamp(static_cast<double>(twips), -1e6, 1e6)); };
    const QPoint corner(edge(placement.left), edge(placement.top));
    // Enough of the title bar to take hold of must be on some screen.
    const QRect handle(corner, QSize(width(), 40));
    for (const QScreen* candidate : screen()->virtualSiblings()) {
        const QRect visible = candidate->availableGeometry().intersected(handle);
        if (visible.width() >= 100 && visible.height() >= 20) return move(corner);
    }
    move(screen()->availableGeometry().topLeft());
}

void frmMain::layOutWindow() {
    bars_.fit(width());
    Form_Resize(ed_, width() * twipsPerPixel, height() * twipsPerPixel);
}

void frmMain::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    // Shown at the size it was laid out for, the window keeps what its start said in status panel 5.
    const bool known =
        width() * twipsPerPixel == ed_.windowWidth && height() * twipsPerPixel == ed_.windowHeight;
    if (isMinimized() || known) return;
    layOutWindow();
    showRecord();
}

void frmMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        bars_.drawIcons();
        undo_->drawIcons();
    }
}

void frmMain::placePathWindow(bool visible) {
    if (visible) {
        const QRect main = frameGeometry();
        QRect place(main.left() + main.width() / 4, main.top() + main.height() + pixels(100),
                    main.width() / 2, main.height() / 2);
        // Below a window that reaches down to the end of the screen nobody would see it.
        const QRect visibleArea = screen()->availableGeometry();
        if (!visibleArea.intersects(place)) place.moveBottom(visibleArea.bottom());
        // Placed by its frame, so that its title bar does not lie on the status bar.
        frmPath_->resize(place.size());
        frmPath_->move(place.topLeft());
    }
    frmPath_->setVisible(visible);
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    // A wheel turned over the closed list would change the selected node's sprite.
    if (event->type() == QEvent::Wheel && watched == bars_.lstSprites) return true;
    if (event->type() == QEvent::Wheel && watched == panels_[3]) {
        turnTime(*static_cast<QWheelEvent*>(event));
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

void frmMain::showRecord() {
    assert(brokenRule(ed_).empty());
    for (const MenuEntry& entry : marks_) entry.action->setChecked(ed_.marks.*entry.row->mark);
    bars_.show(ed_);
    undo_->show(history_);
    showTitle();
    recovery_->follow(ed_, history_);
    for (std::size_t i = 0; i < panels_.size(); ++i)
        panels_[i]->setText(QString::fromStdString(ed_.panels[i]));
    showLayout();
    showTimers();
    if (std::exchange(ed_.sceneStale, false)) picS_->showRecord();
    if (std::exchange(ed_.marksStale, false)) picS_->pacer.request();
    if (std::exchange(ed_.phaseStale, false)) picPhase_->showRecord();
    if (frmPath_->isVisible()) frmPath_->pacer.request();
}

// A name may be of any length while it is typed.
void frmMain::showTitle() {
    QString name = QString::fromStdString(ed_.savedText).simplified().left(100);
    const bool unnamed = name.isEmpty() || name == noFileFound;
    setWindowTitle((unnamed ? "Unnamed" : name.replace("[*]", "[*][*]")) + "[*] - Zentrik");
    setWindowModified(isModified(history_, ed_));
}

void frmMain::showLayout() {
    const auto place = [](QWidget& widget, const Rect& rect, bool visible) {
        if (widget.geometry() != pixelRect(rect)) widget.setGeometry(pixelRect(rect));
        if (widget.isHidden() == visible) widget.setVisible(visible);
    };
    place(*picS_, ed_.layout.picS, true);
    place(*picPhase_, ed_.layout.picPhase, ed_.marks.mnuDisplayAngleManager);
    place(*Frame1_, ed_.layout.Frame1, ed_.marks.mnuDisplayBrowser);
    place(*Frame1_->HScroll1, ed_.layout.HScroll1, ed_.marks.mnuDisplayBrowser);
}

void frmMain::showTimers() {
    const auto follow = [](QTimer& shown, const Timer& timer) {
        if (shown.interval() != timer.interval) shown.setInterval(timer.interval);
        if (timer.enabled && !shown.isActive()) shown.start();
        if (!timer.enabled && shown.isActive()) shown.stop();
    };
    follow(Timer1_, ed_.Timer1);
    follow(timerFireWorks_, ed_.timerFireWorks);
}

}  // namespace zentrik
