#include "files/write_file.h"

#include "files/path.h"
#include "files/write_target.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <system_error>

namespace zentrik {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view leftoverSuffix = ".zentrik-part";
constexpr std::chrono::hours leftoverAge{1};  // no save takes that long

std::string lastError() { return inWords(errno); }

// A file being written beside the one it is to replace; removed unless it has taken its place.
class FileAside {
public:
    explicit FileAside(const fs::path& target) {
        for (int n = 0; handle_ < 0 && n < 100; ++n) {
            path_ = target.string() + "." + std::to_string(::getpid()) + "-" + std::to_string(n) +
                    std::string(leftoverSuffix);
            handle_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
            if (handle_ < 0 && errno != EEXIST) break;
        }
        problem_ = handle_ < 0 ? lastError() : "";
    }
    ~FileAside() {
        if (handle_ < 0) return;
        if (open_) ::close(handle_);
        if (!placed_) ::unlink(path_.c_str());
    }
    FileAside(const FileAside&) = delete;
    FileAside& operator=(const FileAside&) = delete;

    // Each step gives the problem of the first that failed.
    std::string fill(std::string_view bytes) {
        const auto size = static_cast<off_t>(bytes.size());
        while (problem_.empty() && !bytes.empty()) {
            const ssize_t written = ::write(handle_, bytes.data(), bytes.size());
            if (written > 0)
                bytes.remove_prefix(static_cast<std::size_t>(written));
            else if (written == 0 || errno != EINTR)
                problem_ = written == 0 ? "It was cut off." : lastError();
        }
        return problem_.empty() ? finish(size) : problem_;
    }
    void takeModeOf(const fs::path& file) const {
        struct stat old {};
        if (handle_ >= 0 && ::stat(file.c_str(), &old) == 0) (void)::fchmod(handle_, old.st_mode & 07777U);
    }
    std::string replace(const fs::path& target) {
        placed_ = ::rename(path_.c_str(), target.c_str()) == 0;
        return placed_ ? "" : lastError();
    }

private:
    std::string path_, problem_;
    int handle_ = -1;
    bool open_ = true, placed_ = false;

    // Space is often given out only when data goes to the disk, so a full disk may show up no earlier.
    std::string finish(off_t size) {
        if (::fsync(handle_) != 0 && errno != EINVAL && errno != ENOTSUP) return lastError();
        struct stat now {};
        if (::fstat(handle_, &now) != 0 || now.st_size != size) return "It was cut off.";
        open_ = false;
        return ::close(handle_) == 0 ? "" : lastError();
    }
};

// "NAME.PROCESS-NUMBER.zentrik-part"
bool isLeftoverName(std::string_view name) {
    if (!name.ends_with(leftoverSuffix)) return false;
    name.remove_suffix(leftoverSuffix.size());
    const auto dropDigits = [&name] {
        const std::size_t before = name.size();
        while (!name.empty() && name.back() >= '0' && name.back() <= '9') name.remove_suffix(1);
        return name.size() < before;
    };
    if (!dropDigits() || !name.ends_with('-')) return false;
    name.remove_suffix(1);
    return dropDigits() && name.size() > 1 && name.ends_with('.');
}

}  // namespace

std::string writeFile(const std::string& path, std::string_view bytes, const std::string& within) {
    const WriteTarget target = writeTarget(path, within);
    if (!target.problem.empty()) return target.problem;
    FileAside file(target.path);
    if (target.exists) file.takeModeOf(target.path);
    if (std::string problem = file.fill(bytes); !problem.empty()) return problem;
    if (std::string problem = file.replace(target.path); !problem.empty()) return problem;
    const std::string problem = syncFolder(target.path.parent_path().string());
    return problem.empty() ? "" : "It was written, but may not survive a power cut: " + problem;
}

std::string syncFolder(const std::string& folder) {
    const int handle = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return errno == EACCES ? "" : lastError();
    const bool synced = ::fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
    std::string problem = synced ? "" : lastError();
    ::close(handle);
    return problem;
}

void sweepLeftovers(const std::string& folder) {
    const auto youngest = fs::file_time_type::clock::now() - leftoverAge;
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code unknown;
        const bool ours = isLeftoverName(entry->path().filename().string()) &&
                          entry->symlink_status(unknown).type() == fs::file_type::regular;
        if (ours && entry->last_write_time(unknown) < youngest && !unknown)
            fs::remove(entry->path(), unknown);
    }
}

}  // namespace zentrik
