#include "cli/files.h"

#include "files/read_file.h"
#include "files/write_file.h"
#include "library/zoo.h"

#include <istream>
#include <iterator>
#include <ostream>

namespace zentrik::cli {

namespace {

std::string allOf(std::istream& in) { return {std::istreambuf_iterator<char>(in), {}}; }

std::string bytesOf(FileBytes read, const std::string& file) {
    if (!read.problem.empty()) throw Failure{finding, file + ": " + read.problem};
    return std::move(read.bytes);
}

}  // namespace

std::string shownName(const std::string& file) { return file == "-" ? "standard input" : file; }

std::string problemText(const std::string& file, const ReadProblem& problem) {
    const std::string line = problem.line == 0 ? "" : std::to_string(problem.line) + ":";
    return shownName(file) + ":" + line + " " + problem.text;
}

std::string readBytes(const std::string& file, Streams& streams) {
    return file == "-" ? allOf(streams.in) : bytesOf(readProjectFile(file), file);
}

std::string readAnyBytes(const std::string& file, Streams& streams) {
    return file == "-" ? allOf(streams.in) : bytesOf(readFile(file), file);
}

void writeBytes(const std::string& file, std::string_view bytes, Streams& streams) {
    if (file == "-") {
        if (!(streams.out << bytes)) throw Failure{finding, outputProblem};
        return;
    }
    const std::string problem = writeFile(file, bytes);
    if (!problem.empty()) throw Failure{finding, file + ": " + problem};
}

}  // namespace zentrik::cli
