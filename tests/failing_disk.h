#pragma once
// A disk that fails on demand: while one of these lives, the calling thread's n-th call of a kind fails
// for ordinary files and folders, as it would on a full or a dying disk.

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

}  // namespace zentrik
