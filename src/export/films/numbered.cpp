#include "export/films/numbered.h"

#include "files/path.h"
#include "files/write_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace zentrik {

namespace fs = std::filesystem;

NumberedWriter::NumberedWriter(std::string path, const Editor& ed, const FilmPlan& plan)
    : path_(std::move(path)),
      aside_(path_ + "." + std::to_string(::getpid()) + ".zentrik-part"),
      plan_(plan),
      digits_(std::max<std::size_t>(4, std::to_string(pictureCount(ed, plan)).size())) {}

NumberedWriter::~NumberedWriter() {
    std::error_code error;
    if (taken_ > 0) fs::remove_all(aside_, error);
}

std::string NumberedWriter::makeFolder() const {
    std::error_code error;
    if (fs::exists(fs::symlink_status(path_, error))) return "There is something of that name already.";
    return ::mkdir(aside_.c_str(), 0777) == 0 ? "" : inWords(errno);
}

std::string NumberedWriter::take(const Subject& subject) {
    if (taken_ == 0)
        if (std::string problem = makeFolder(); !problem.empty()) return problem;
    std::string number = std::to_string(++taken_);
    number.insert(0, digits_ - std::min(digits_, number.size()), '0');
    const std::string bytes = pngBytes(sceneImage(subject, plan_.look));
    if (bytes.empty()) return "So large a picture cannot be made.";
    size_ += static_cast<double>(bytes.size());
    return writeFile(aside_ + "/" + number + ".png", bytes);
}

std::string NumberedWriter::finish() {
    if (::rename(aside_.c_str(), path_.c_str()) != 0) return inWords(errno);
    taken_ = 0;
    return syncFolder(fs::path(path_).parent_path().string());
}

}  // namespace zentrik
