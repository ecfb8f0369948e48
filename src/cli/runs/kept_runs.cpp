#include "cli/runs/kept_runs.h"

#include "cli/files.h"
#include "cli/numbers.h"
#include "files/path.h"

#include <QCryptographicHash>
#include <bit>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <utility>

namespace zentrik::cli {

namespace {

constexpr std::string_view firstWords = "Zentrik runs of ";

std::string hashOf(const std::string& text) {
    return QCryptographicHash::hash(text, QCryptographicHash::Sha1).toHex().toStdString();
}

}  // namespace

KeptRuns::KeptRuns(std::string file, const std::string& what, bool goesOn, Streams& streams)
    : file_(std::move(file)) {
    // The work of a night may be in it.
    if (!goesOn && std::filesystem::exists(pathOf(file_)))
        throw Failure{finding,
                      file_ + " is of a search that was ended: go on with --continue, or remove it."};
    const std::string head = std::string(firstWords) + hashOf(what) + "\n";
    writeBytes(file_, goesOn ? read(head, streams) : head, streams);
    out_.reset(std::fopen(file_.c_str(), "ab"));
    if (!out_) throw Failure{finding, file_ + ": " + inWords(errno) + "."};
}

// Gives what of it is whole.
std::string KeptRuns::read(const std::string& head, Streams& streams) {
    std::string text = readAnyBytes(file_, streams);
    text.resize(text.rfind('\n') + 1);
    if (!text.starts_with(firstWords)) throw Failure{finding, file_ + ": These are no runs of a search."};
    if (!text.starts_with(head))
        throw Failure{finding, file_ + ": These are the runs of another project, or of other options."};
    std::size_t number = 2;
    for (std::size_t at = head.size(), end = 0; at < text.size(); at = end + 1, ++number) {
        end = text.find('\n', at);
        const std::vector<std::string> parts = split(std::string_view(text).substr(at, end - at), ' ');
        const auto run = readWhole(parts.front()), worth = readWhole(parts.back());
        if (parts.size() != 2 || !run || !worth)
            throw Failure{finding, file_ + ":" + std::to_string(number) + ": This is no run."};
        worths_[*run] = std::bit_cast<double>(*worth);  // for it must be the very same
    }
    return text;
}

std::optional<double> KeptRuns::find(std::int64_t run) const {
    const auto kept = worths_.find(run);
    return kept == worths_.end() ? std::optional<double>() : kept->second;
}

void KeptRuns::append(std::int64_t run, double worth) {
    const std::string line =
        std::to_string(run) + " " + std::to_string(std::bit_cast<std::int64_t>(worth)) + "\n";
    std::fputs(line.c_str(), out_.get());
    if (std::fflush(out_.get()) != 0) throw Failure{finding, file_ + ": " + inWords(errno) + "."};
}

void KeptRuns::remove() {
    std::error_code error;
    std::filesystem::remove(pathOf(file_), error);
}

}  // namespace zentrik::cli
