#pragma once
#include <QLocalServer>
#include <QStringList>
#include <functional>

namespace zentrik {

// Programs that work in the same folder find each other, so that a second start can hand its files to the
// first. folder: where zoo and sprites are.

// True when a running program has taken the files; it shows its window then.
bool handToRunning(const QString& folder, const QStringList& files);

// Listens for second starts as long as it lives, unless another program does already.
class StartListener : public QObject {
public:
    StartListener(const QString& folder, std::function<void(const QStringList& files)> started);

private:
    QLocalServer server_;
    std::function<void(const QStringList&)> started_;

    void take(QLocalSocket& from);
};

}  // namespace zentrik
