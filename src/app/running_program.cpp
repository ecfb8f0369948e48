#include "app/running_program.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QLocalSocket>
#include <QStandardPaths>

namespace zentrik {

namespace {

constexpr int patience = 5000;  // milliseconds for an answer; a program that hangs must not keep a file
constexpr char taken = '!';

QString addressFor(const QString& folder) {
    const QByteArray digest = QCryptographicHash::hash(folder.toUtf8(), QCryptographicHash::Sha1).toHex();
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + "/zentrik-" + digest.left(16);
}

}  // namespace

bool handToRunning(const QString& folder, const QStringList& files) {
    QLocalSocket socket;
    socket.connectToServer(addressFor(folder));
    if (!socket.waitForConnected(patience)) return false;
    QDataStream stream(&socket);
    stream << files;
    char answer = 0;
    while (socket.bytesAvailable() == 0)
        if (!socket.waitForReadyRead(patience)) return false;
    return socket.getChar(&answer) && answer == taken;
}

StartListener::StartListener(const QString& folder, std::function<void(const QStringList&)> started)
    : started_(std::move(started)) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* from = server_.nextPendingConnection()) {
            connect(from, &QLocalSocket::disconnected, from, &QObject::deleteLater);
            connect(from, &QLocalSocket::readyRead, this, [this, from] { take(*from); });
            if (from->bytesAvailable() > 0) take(*from);
        }
    });
    const QString address = addressFor(folder);
    if (server_.listen(address)) return;
    QLocalSocket socket;
    socket.connectToServer(address);
    if (socket.waitForConnected(patience)) return;
    // A program that was killed left it.
    QLocalServer::removeServer(address);
    server_.listen(address);
}

void StartListener::take(QLocalSocket& from) {
    QDataStream stream(&from);
    QStringList files;
    stream.startTransaction();
    stream >> files;
    if (!stream.commitTransaction()) return;  // the rest is on its way
    from.putChar(taken);
    from.flush();
    started_(files);
}

}  // namespace zentrik
