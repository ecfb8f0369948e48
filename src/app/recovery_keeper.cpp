#include "app/recovery_keeper.h"

#include "project/backups.h"
#include "project/recovery.h"
#include "project/write_file.h"
#include "project/writer.h"
#include "project/zoo.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <algorithm>

namespace zentrik {

namespace {

constexpr qint64 idleWait = 5000, editingWait = 15000, runningWait = 30000;  // milliseconds

std::string ownName() {
    const QString name =
        QString("%1-%2").arg(QCoreApplication::applicationPid()).arg(QRandomGenerator::global()->generate());
    return name.toStdString();
}

std::unique_ptr<Editor> copyOf(const Editor& ed) {
    auto copy = std::make_unique<Editor>();
    copyContents(*copy, ed);
    copy->sceneWidth = ed.sceneWidth;
    copy->sceneHeight = ed.sceneHeight;
    copy->savedText = ed.savedText;
    return copy;
}

}  // namespace

RecoveryKeeper::RecoveryKeeper(const std::string& programFolder, QObject* parent)
    : QObject(parent),
      programFolder_(programFolder),
      file_(pathText(recoveryFolder(programFolder)) + "/" + ownName()),
      lock_(QString::fromStdString(file_) + ".lock") {
    lock_.setStaleLockTime(0);
    worker_.setMaxThreadCount(1);
    due_.setObjectName("RecoveryDue");
    due_.setParent(this);
    due_.setSingleShot(true);
    connect(&due_, &QTimer::timeout, this, &RecoveryKeeper::copy);
}

RecoveryKeeper::~RecoveryKeeper() { worker_.waitForDone(); }

void RecoveryKeeper::follow(const Editor& ed, const History& history) {
    ed_ = &ed;
    const bool going = history.going != History::Going::nothing;
    const bool newState = std::exchange(state_, history.state) != history.state;
    if (newState && !history.done.empty() && history.done.back().to == history.state &&
        history.done.back().loses)
        keepFormer(history, ed);
    wanted_ = isModified(history, ed);
    if (!wanted_) {
        due_.stop();
        changing_.invalidate();
        if (!busy_) removeCopy();
    } else if (going || newState || !(written_ || changing_.isValid())) {
        change(history.going == History::Going::run);
    }
}

// Every change puts the copy off for as long as a person may be in the midst of something, but not for
// ever. A run changes the model all the time.
void RecoveryKeeper::change(bool running) {
    if (!changing_.isValid()) changing_.start();
    if (running && due_.isActive()) return;
    const qint64 elapsed = changing_.elapsed();
    const qint64 wait = running ? runningWait - elapsed : std::min(idleWait, editingWait - elapsed);
    due_.start(static_cast<int>(std::max<qint64>(wait, 0)));
}

void RecoveryKeeper::copy() {
    if (busy_) return due_.start(static_cast<int>(idleWait));
    if (!wanted_ || ed_ == nullptr) return;
    busy_ = true;
    changing_.invalidate();
    copied_ = copyOf(*ed_);
    worker_.start([this] {
        const std::string problem = write();
        QMetaObject::invokeMethod(
            this, [this, problem] { copyWritten(problem); }, Qt::QueuedConnection);
    });
}

std::string RecoveryKeeper::write() {
    QDir().mkpath(QFileInfo(QString::fromStdString(file_)).path());
    if (!lock_.isLocked() && !lock_.tryLock(0)) return "The folder for recovery copies cannot be written.";
    return writeFile(file_ + copySuffix, recoveryBytes(*copied_));
}

void RecoveryKeeper::copyWritten(const std::string& problem) {
    busy_ = false;
    copied_.reset();
    if (problem.empty()) written_ = true;
    if (!wanted_) return removeCopy();
    if (problem.empty() || told_ || !failed) return;
    told_ = true;  // once is enough; the next copies are tried all the same
    failed(problem);
}

void RecoveryKeeper::removeCopy() {
    if (!std::exchange(written_, false)) return;
    QFile::remove(QString::fromStdString(file_ + copySuffix));
}

// What the newest step threw away was nowhere but here.
void RecoveryKeeper::keepFormer(const History& history, const Editor& ed) {
    auto former = std::make_shared<Editor>();
    Contents contents = history.shown;
    apply(history.done.back().difference, Way::back, contents);
    copyContents(*former, contents);
    former->sceneWidth = ed.sceneWidth;
    former->sceneHeight = ed.sceneHeight;
    const std::string& text = history.done.back().before.savedText;
    const std::string name = nameProblem(text).empty() ? text : "resume";
    worker_.start([this, former, name] {
        const std::string problem = keepVersion(programFolder_, name, projectBytes(*former));
        if (problem.empty()) return;
        QMetaObject::invokeMethod(
            this,
            [this, problem] {
                if (failed) failed(problem);
            },
            Qt::QueuedConnection);
    });
}

void RecoveryKeeper::endFiled() {
    due_.stop();
    worker_.waitForDone();
    written_ = written_ || busy_;
    removeCopy();
    lock_.unlock();
}

std::string RecoveryKeeper::endUnfiled(const Editor& ed) {
    due_.stop();
    worker_.waitForDone();
    copied_ = copyOf(ed);
    return write();
}

}  // namespace zentrik
