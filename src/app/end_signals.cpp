#include "app/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>
#include <csignal>

namespace zentrik {

namespace {

constexpr int signalsThatEnd[] = {SIGTERM, SIGINT, SIGHUP};
int ends[2] = {-1, -1};  // of the pipe: to read from, to write to

void arrived(int) {
    const int before = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(ends[1], &byte, 1);
    errno = before;
}

void handle(void (*handler)(int)) {
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int number : signalsThatEnd) ::sigaction(number, &action, nullptr);
}

}  // namespace

EndSignals::EndSignals() {
    std::signal(SIGXFSZ, SIG_IGN);  // a save beyond the limit of a file's size fails instead of ending us
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
    auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        if (ended) ended();
    });
    handle(arrived);
}

EndSignals::~EndSignals() {
    handle(SIG_DFL);
    for (int& end : ends) ::close(end), end = -1;
}

}  // namespace zentrik
