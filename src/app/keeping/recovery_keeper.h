#pragma once
#include "history/history.h"

#include <QElapsedTimer>
#include <QLockFile>
#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <functional>
#include <memory>

namespace zentrik {

// Keeps what is not saved safe from the end of the program by anything but its close button: a recovery
// copy of the model 5 s after the last change, at least every 15 s while changes go on and every 30 s
// during a run; and among the former versions what an event threw away. The event loop only copies the
// model, a worker writes. A lock tells other programs that this one lives.
class RecoveryKeeper : public QObject {
public:
    RecoveryKeeper(const std::string& programFolder, QObject* parent);
    ~RecoveryKeeper() override;

    std::function<void(const std::string& problem)> failed;

    // To be called after every event.
    void follow(const Editor& ed, History& history);

    // The end of the program: all work is filed, so that the copy can go ...
    void endFiled();
    // ... or it is not, and the copy stays for the next start. Gives the problem in words.
    std::string endUnfiled(const Editor& ed);

private:
    const std::string programFolder_;
    const std::string file_;  // without its suffix
    QLockFile lock_;
    QThreadPool worker_;
    QTimer due_;
    QElapsedTimer changing_;          // since the oldest change that no copy has; invalid when there is none
    std::unique_ptr<Editor> copied_;  // the worker's while it is busy
    const Editor* ed_ = nullptr;
    History* history_ = nullptr;
    std::uint64_t state_ = 0;  // the last one seen
    bool busy_ = false, wanted_ = false, written_ = false, told_ = false;

    void change(bool running);
    void copy();
    void copyWritten(const std::string& problem);
    bool isNeedless() const;
    void removeCopy();
    void keepLost();
    void keep(Lost lost);
    std::string write();
};

}  // namespace zentrik
