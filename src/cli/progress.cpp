#include "cli/progress.h"

#include "basics/numbers.h"

#include <ostream>

namespace zentrik::cli {

namespace {

constexpr std::chrono::milliseconds pause{200};
constexpr const char* eraseLine = "\r\033[K";

}  // namespace

Progress::Progress(Streams& streams, std::string what, std::int64_t total)
    : streams_(streams), what_(std::move(what)), total_(total) {}

Progress::~Progress() {
    if (shown_) streams_.error << eraseLine << std::flush;
}

void Progress::show(std::int64_t done, const std::string& more) {
    if (!streams_.errorIsTerminal) return;
    const Clock::time_point now = Clock::now();
    if (now - last_ < pause) return;
    last_ = now;
    shown_ = true;
    const double spent = std::chrono::duration<double>(now - start_).count();
    const double left = done > 0 ? spent / static_cast<double>(done) * static_cast<double>(total_ - done) : 0;
    streams_.error << eraseLine << done << " of " << total_ << " " << what_ << ", " << fixedText(left, 0)
                   << " s left" << more << std::flush;
}

}  // namespace zentrik::cli
