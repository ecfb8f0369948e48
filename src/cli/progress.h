#pragma once
#include "cli/command.h"

#include <chrono>

namespace zentrik::cli {

// One line on the error stream that tells how far a command is, while somebody watches.
class Progress {
public:
    // `what` are counted, in the plural.
    Progress(Streams& streams, std::string what, std::int64_t total);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // May be called as often as one likes.
    void show(std::int64_t done, const std::string& more = {});

private:
    using Clock = std::chrono::steady_clock;

    Streams& streams_;
    const std::string what_;
    const std::int64_t total_;
    const Clock::time_point start_ = Clock::now();
    Clock::time_point last_ = start_;
    bool shown_ = false;
};

}  // namespace zentrik::cli
