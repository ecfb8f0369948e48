#pragma once
// A disk that fails on demand: while one of these lives, the calling thread's n-th call of a kind fails
// for ordinary files and folders, as it would on a full or a dying disk.

#include <sys/resource.h>

#include <csignal>

namespace zentrik {

enum class DiskCall { write, sync, rename, link };

class FailingDisk {
public:
    // n counts from 1. A write that fails stores half of its bytes first, and no later one succeeds.
    FailingDisk(DiskCall call, int n);
    ~FailingDisk();
    FailingDisk(const FailingDisk&) = delete;
    FailingDisk& operator=(const FailingDisk&) = delete;

    static bool hasFailed();  // since the last one was made
};

// While one of these lives, no file of the program can grow beyond so many bytes, as by `ulimit -f`.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        works = setrlimit(RLIMIT_FSIZE, &limit) == 0;
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

    bool works = false;

private:
    rlimit before_{};
    void (*const handler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

}  // namespace zentrik
