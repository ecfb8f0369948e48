#include "app/boxes/message_fetcher.h"

#include "basics/utf8.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>
#include <QVariant>

namespace zentrik {

namespace {

constexpr qint64 longestText = 4096;  // bytes; a server that sends more is cut short

}  // namespace

void MessageFetcher::fetch(const QUrl& address) {
    QNetworkReply* reply = network_.get(QNetworkRequest(address));
    reply->setReadBufferSize(longestText + 1);
    // One deadline for the whole transfer: a server that sends a byte now and then must not keep it open.
    QTimer::singleShot(timeout, reply, [reply] {
        reply->setProperty("late", true);
        reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply] {
        if (reply->bytesAvailable() <= longestText) return;
        // Aborting throws away what was not read yet.
        reply->setProperty("front", reply->read(longestText + 1));
        reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::finished, reply, [this, reply] { finish(*reply); });
}

void MessageFetcher::finish(QNetworkReply& reply) {
    reply.deleteLater();
    const QVariant front = reply.property("front");
    const bool cutShort = front.isValid();
    if (reply.error() == QNetworkReply::NoError || cutShort) {
        const std::string bytes = (cutShort ? front.toByteArray() : reply.readAll()).toStdString();
        fetched(QString::fromStdString(std::string(utf8Front(bytes, longestText))), {});
    } else if (reply.property("late").toBool())
        fetched({}, "the server did not answer in time");
    else
        fetched({}, reply.errorString());
}

}  // namespace zentrik
