#pragma once
#include <QObject>
#include <functional>

class QSocketNotifier;

namespace zentrik {

// SIGTERM, SIGINT and SIGHUP end the program by way of the event loop: the handler itself only writes a
// byte. One of these in a process.
class EndSignals : public QObject {
public:
    EndSignals();
    ~EndSignals() override;

    std::function<void()> ended;
};

}  // namespace zentrik
