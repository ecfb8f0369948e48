#include "app/window/frm_main.h"

#include "app/bars/icons.h"
#include "app/keeping/program_folder.h"
#include "app/views/spoken.h"
#include "basics/units.h"
#include "files/write_file.h"
#include "library/library.h"
#include "library/zoo.h"
#include "model/invariants.h"
#include "model/redraw.h"
#include "model/store.h"
#include "ui/commands/layout.h"
#include "ui/commands/sprite_commands.h"
#include "ui/property_toolbar.h"

#include <QComboBox>
#include <QFileInfo>
#include <QScrollBar>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cassert>
#include <utility>

namespace zentrik {

namespace {

// Bars are this high where their font allows, so that the client area begins where the layout counts on it.
constexpr int menuBarHeight = 24;  // pixels

QRect pixelRect(const Rect& r) {
    const int left = pixels(r.left), top = pixels(r.top);
    return {left, top, pixels(r.left + r.width) - left, pixels(r.top + r.height) - top};
}

}  // namespace

frmMain::frmMain(const QString& folder)
    : events_(*this),
      ed_(events_.ed),
      menus_(*menuBar()),
      panels_(*statusBar()),
      wheel_(panels_.panel(4)),
      client_(new QWidget(this)),
      bars_(*this),
      undo_(new UndoButtons(this)),
      share_(new ShareButton(this)),
      sharing_(ed_, events_.host, *this),
      picS_(new SceneView(ed_, client_)),
      picPhase_(new PhaseView(ed_, client_)),
      Frame1_(new SpriteBrowser(client_)),
      frmPath_(new PathWindow(ed_, this)),
      parts_{bars_, *picS_, *Frame1_, *picPhase_},
      place_(*this),
      plotting_(*this, events_, sharing_, place_),
      drops_(*this, events_, *picS_),
      keys_(*this, events_, sharing_, plotting_, parts_) {
    setObjectName("frmMain");
    setWindowIcon(programIcon());
    statusBar()->setObjectName("StatusBar1");
    buildAreas();
    fillCorner();
    connectBars();
    connectLists();
    connectProjectList();
    connectViews();
    connectHost();
    connectTimers();
    connectOutside();
    parts_.chooseTabOrder();
    Form_Load(folder);
    startHistory(events_.history, ed_);
    recovery_ = new RecoveryKeeper(ed_.programFolder, this);
    recovery_->failed = [this](const std::string& problem) {
        panel(ed_, 5) = "What is not saved could not be kept safe: " + problem;
        showRecord();
    };
    showRecord();
    picS_->setFocus();
}

void frmMain::Form_Load(const QString& folder) {
    ed_.programFolder = (folder.isEmpty() ? programFolder() : folder).toStdString();
    for (const char* kept : {"/zoo", "/backups", "/recovery"}) sweepLeftovers(ed_.programFolder + kept);
    ed_.chance.reseed();
    readSprites();
    if (!QFileInfo::exists(QString::fromStdString(ed_.programFolder) + "/zoo"))
        panel(ed_, 5) = "The sample projects could not be copied to " + ed_.programFolder;
    const std::string toSay = panel(ed_, 5);
    Placement placement;
    const std::string settingsProblem = settings_.load(ed_, placement);
    fitBars();
    place_.restore(placement, ed_.windowMaximized);
    layOutWindow();
    showGlobalValues(ed_);
    showCounts(ed_);
    panel(ed_, 3) = "Cycles: 0";
    LoadListOfFileNames(ed_, events_.host, true);
    if (!ed_.marks.mnuAutoResume) ClearAnimation(ed_);
    redrawScene(ed_);
    redrawPhaseManager(ed_, 0);
    if (!toSay.empty()) panel(ed_, 5) = toSay;
    if (!settingsProblem.empty())
        events_.host.messageBox(settingsProblem + "\nThe program goes on with what it could read.", "Zentrik",
                                BoxIcon::exclamation);
}

// The folder may hold other pictures by now.
void frmMain::readSprites() {
    const std::vector<std::string> skipped = picS_->sprites.read(ed_.programFolder + "/sprites");
    listSprites(ed_, picS_->sprites.names());
    Frame1_->setPictures(picS_->sprites);
    for (std::size_t i = 0; i < skipped.size(); ++i)
        panel(ed_, 5) = (i == 0 ? "No usable picture: " : panel(ed_, 5) + ", ") + skipped[i];
}

void frmMain::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    // Shown at the size it was laid out for, the window keeps what its start said in status panel 5.
    const bool known = width() * twipsPerPixel == ed_.windowWidth &&
                       (height() - roomTaken()) * twipsPerPixel == ed_.windowHeight;
    if (isMinimized() || known) return;
    layOutWindow();
    showRecord();
}

void frmMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        bars_.followPalette();
        undo_->drawIcons();
        share_->drawIcon();
        plotting_.drawIcon();
        showRecord();
    }
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fitBars();
        layOutWindow();
        showRecord();
    }
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    // A wheel turned over the closed list would change the selected node's sprite.
    if (event->type() == QEvent::Wheel && watched == bars_.lstSprites) return true;
    return QMainWindow::eventFilter(watched, event);
}

// A button's status tip takes status panel 5 while the pointer is over the button.
bool frmMain::event(QEvent* event) {
    if (event->type() != QEvent::StatusTip) return QMainWindow::event(event);
    const QString tip = static_cast<QStatusTipEvent*>(event)->tip();
    panels_.panel(5).show(tip.isEmpty() ? QString::fromStdString(panel(ed_, 5)) : tip);
    return true;
}

void frmMain::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    place_.followScreen();
}

// Menu and status bar take the room that their font needs.
void frmMain::fitBars() {
    menuBar()->setFixedHeight(std::max(menuBarHeight, menuBar()->sizeHint().height()));
    panels_.fit();
}

// What the bars take of the height that the layout leaves them room in, beyond their design, pixels.
int frmMain::roomTaken() const {
    return menuBar()->height() - menuBarHeight + statusBar()->height() - StatusPanels::designHeight;
}

void frmMain::layOutWindow() {
    bars_.fit(width());
    Form_Resize(ed_, width() * twipsPerPixel, (height() - roomTaken()) * twipsPerPixel);
}

void frmMain::showRecord() {
    assert(brokenRule(ed_).empty());
    if (ed_.marks.mnuDisplayBrowser && Frame1_->isHidden() && isVisible()) readSprites();
    renewGlobalValues(ed_);
    menus_.show(ed_);
    bars_.show(ed_);
    undo_->show(events_.history);
    showTitle();
    recovery_->follow(ed_, events_.history);
    panels_.show(ed_.panels);
    describeSelection(*picS_, *picPhase_, ed_);
    showLayout();
    showTimers();
    if (std::exchange(ed_.sceneStale, false)) picS_->showRecord();
    if (std::exchange(ed_.marksStale, false)) picS_->pacer.request();
    if (std::exchange(ed_.phaseStale, false)) picPhase_->showRecord();
    if (frmPath_->isVisible()) frmPath_->pacer.request();
    plotting_.follow();
}

// A name may be of any length while it is typed.
void frmMain::showTitle() {
    QString name = QString::fromStdString(ed_.savedText).simplified().left(100);
    const bool unnamed = name.isEmpty() || name == noFileFound;
    setWindowTitle((unnamed ? "Unnamed" : name.replace("[*]", "[*][*]")) + "[*] - Zentrik");
    setWindowModified(isModified(events_.history, ed_));
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
    const auto follow = [](QTimer& shown, const Timer& timer, std::int32_t period) {
        if (shown.interval() != period) shown.setInterval(period);
        if (timer.enabled && !shown.isActive()) shown.start();
        if (!timer.enabled && shown.isActive()) shown.stop();
    };
    follow(Timer1_, ed_.Timer1, ed_.timerPeriod);
    follow(timerFireWorks_, ed_.timerFireWorks, fireworksPeriod);
}

}  // namespace zentrik
