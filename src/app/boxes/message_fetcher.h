#pragma once
#include <QNetworkAccessManager>
#include <QString>
#include <functional>

class QNetworkReply;
class QUrl;

namespace zentrik {

// Fetches a short text from a web server without holding up the program.
class MessageFetcher {
public:
    // Called once per fetch, with the text or with what went wrong.
    std::function<void(const QString& text, const QString& problem)> fetched;
    int timeout = 5000;  // milliseconds for the whole transfer

    void fetch(const QUrl& address);

private:
    QNetworkAccessManager network_;
    void finish(QNetworkReply& reply);
};

}  // namespace zentrik
