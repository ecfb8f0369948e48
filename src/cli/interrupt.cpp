#include "cli/interrupt.h"

#include "cli/failure.h"

#include <csignal>

namespace zentrik::cli {

namespace {

volatile std::sig_atomic_t wished = 0;

void note(int) { wished = 1; }

}  // namespace

Interrupt::Interrupt() : interrupt_(std::signal(SIGINT, note)), terminate_(std::signal(SIGTERM, note)) {
    wished = 0;
}

Interrupt::~Interrupt() {
    std::signal(SIGINT, interrupt_);
    std::signal(SIGTERM, terminate_);
    wished = 0;
}

bool Interrupt::came() { return wished != 0; }

void Interrupt::check() {
    if (came()) throw Failure{interrupted, "Interrupted; nothing was made."};
}

}  // namespace zentrik::cli
