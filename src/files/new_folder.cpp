#include "files/new_folder.h"

#include "files/path.h"
#include "files/write_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace zentrik {

namespace fs = std::filesystem;

namespace {

// "x/" and "x" are the same folder.
std::string withoutSlashes(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

}  // namespace

NewFolder::NewFolder(std::string path)
    : path_(withoutSlashes(std::move(path))),
      aside_(path_ + "." + std::to_string(::getpid()) + ".zentrik-part") {}

NewFolder::~NewFolder() {
    std::error_code error;
    if (made_) fs::remove_all(aside_, error);
}

std::string NewFolder::make() {
    if (isThere(path_)) return "There is something of that name already.";
    made_ = ::mkdir(aside_.c_str(), 0777) == 0;
    return made_ ? "" : inWords(errno);
}

std::string NewFolder::write(const std::string& name, std::string_view bytes) const {
    const fs::path file = fs::path(aside_) / name;
    if (::mkdir(file.parent_path().c_str(), 0777) != 0 && errno != EEXIST) return inWords(errno);
    return writeFile(file.string(), bytes);
}

std::string NewFolder::finish() {
    if (::rename(aside_.c_str(), path_.c_str()) != 0) return inWords(errno);
    made_ = false;
    return syncFolder(fs::path(path_).parent_path().string());
}

}  // namespace zentrik
