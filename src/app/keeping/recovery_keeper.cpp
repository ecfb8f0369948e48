#include "app/keeping/recovery_keeper.h"

#include "files/path.h"
#include "files/write_file.h"
#include "history/lost_work.h"
#include "library/backups.h"
#include "library/recovery.h"
#include "library/zoo.h"
#include "project/writer.h"

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
    static_cast<Contents&>(*copy) = ed;
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

void RecoveryKeeper::follow(const Editor& ed, History& history) {
    ed_ = &ed;
    history_ = &history;
    keepLost();
    const bool going = history.going != History::Going::nothing;
    const bool newState = std::exchange(state_, history.state) != history.state;
    wanted_ = isModified(history, ed);
    if (!wanted_) {
        due_.stop();
        changing_.invalidate();
        if (!busy_ && isNeedless()) removeCopy();
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
    noteUndone(*history_, sizeOf(*ed_), Undone::whenMuch);  // the copy held it until now
    keepLost();
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
    if (isNeedless()) return removeCopy();
    if (problem.empty() || told_ || !failed) return;
    told_ = true;  // once is enough; the next copies are tried all the same
    failed(problem);
}

// As long as what was undone can be redone, a copy may be all that would be left of it.
bool RecoveryKeeper::isNeedless() const { return !wanted_ && history_->undone.empty(); }

// After all that the worker still has to keep: until then the copy may be all there is of it.
void RecoveryKeeper::removeCopy() {
    if (!std::exchange(written_, false)) return;
    worker_.start([copy = QString::fromStdString(file_ + copySuffix)] { QFile::remove(copy); });
}

void RecoveryKeeper::keepLost() {
    for (Lost& lost : std::exchange(history_->lost, {})) keep(std::move(lost));
}

void RecoveryKeeper::keep(Lost lost) {
    auto former = std::make_shared<Editor>();
    static_cast<Contents&>(*former) = std::move(lost.model);
    former->sceneWidth = ed_->sceneWidth;
    former->sceneHeight = ed_->sceneHeight;
    const std::string name = nameProblem(lost.project).empty() ? lost.project : "resume";
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
    noteUndone(*history_, sizeOf(*ed_), Undone::everything);
    keepLost();
    written_ = written_ || busy_;
    removeCopy();
    worker_.waitForDone();
    lock_.unlock();
}

std::string RecoveryKeeper::endUnfiled(const Editor& ed) {
    due_.stop();
    worker_.waitForDone();
    copied_ = copyOf(ed);
    return write();
}

}  // namespace zentrik
