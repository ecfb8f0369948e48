#include "app/message_fetcher.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

namespace zentrik {

namespace {

constexpr qint64 longestText = 4096;  // bytes; a server that sends more is cut short

}  // namespace

void MessageFetcher::fetch(const QUrl& address) {
    QNetworkReply* reply = network_.get(QNetworkRequest(address));
    reply->setReadBufferSize(longestText);
    // One deadline for the whole transfer: a server that sends a byte now and then must not keep it open.
    QTimer::singleShot(timeout, reply, [reply] {
        reply->setProperty("late", true);
        reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply] {
        if (reply->bytesAvailable() >= longestText) reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::finished, reply, [this, reply] { finish(*reply); });
}

void MessageFetcher::finish(QNetworkReply& reply) {
    reply.deleteLater();
    const QByteArray bytes = reply.isOpen() ? reply.read(longestText) : QByteArray();
    const bool cutShort = bytes.size() >= longestText;
    if (reply.error() == QNetworkReply::NoError || cutShort)
        fetched(QString::fromUtf8(bytes), {});
    else if (reply.property("late").toBool())
        fetched({}, "the server did not answer in time");
    else
        fetched({}, reply.errorString());
}

}  // namespace zentrik
