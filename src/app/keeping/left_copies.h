#pragma once
#include "library/recovery.h"

#include <QDateTime>
#include <QLockFile>
#include <memory>
#include <vector>

namespace zentrik {

// A recovery copy whose program is gone. While it is held no other program offers it.
struct LeftCopy {
    std::filesystem::path path;
    std::unique_ptr<QLockFile> lock;
    RecoveryCopy copy;
    QDateTime written;
};

// Newest first. Half copies, and copies of programs that live, are passed over.
std::vector<LeftCopy> leftCopies(const std::string& programFolder);

// What a person is asked about it.
std::string describe(const LeftCopy& left);

// Moves the copy's file among the former versions of its project. One that cannot be kept there stays where
// it is.
void putAway(const std::string& programFolder, const LeftCopy& left);

}  // namespace zentrik
