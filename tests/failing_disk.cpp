// The program's calls find these functions before the system's, and these pass them on.

#include "failing_disk.h"

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace zentrik {

namespace {

struct Fault {
    bool armed = false, failed = false;
    DiskCall call = DiskCall::write;
    int left = 0;
};
thread_local Fault fault;

// True for the call that is to fail.
bool fails(DiskCall call) {
    if (!fault.armed || fault.call != call || --fault.left != 0) return false;
    return fault.failed = true;
}

bool isOrdinary(int handle) {
    struct stat status {};
    return ::fstat(handle, &status) == 0 && (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode));
}

template <class Function>
Function* systems(const char* name, Function*) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

int refuse(int error) {
    errno = error;
    return -1;
}

}  // namespace

FailingDisk::FailingDisk(DiskCall call, int n) { fault = {true, false, call, n}; }
FailingDisk::~FailingDisk() { fault.armed = false; }
bool FailingDisk::hasFailed() { return fault.failed; }

}  // namespace zentrik

using zentrik::DiskCall;

extern "C" {

ssize_t write(int handle, const void* bytes, size_t count) {
    static auto* const next = zentrik::systems("write", &::write);
    if (!zentrik::fault.armed || !zentrik::isOrdinary(handle)) return next(handle, bytes, count);
    const bool full = zentrik::fault.failed && zentrik::fault.call == DiskCall::write;
    if (full) return zentrik::refuse(ENOSPC);
    return next(handle, bytes, zentrik::fails(DiskCall::write) ? count / 2 : count);
}

int fsync(int handle) {
    static auto* const next = zentrik::systems("fsync", &::fsync);
    return zentrik::fails(DiskCall::sync) ? zentrik::refuse(EIO) : next(handle);
}

int rename(const char* from, const char* to) noexcept {
    static auto* const next = zentrik::systems("rename", &::rename);
    return zentrik::fails(DiskCall::rename) ? zentrik::refuse(ENOSPC) : next(from, to);
}

int link(const char* from, const char* to) noexcept {
    static auto* const next = zentrik::systems("link", &::link);
    return zentrik::fails(DiskCall::link) ? zentrik::refuse(EPERM) : next(from, to);
}

}  // extern "C"
