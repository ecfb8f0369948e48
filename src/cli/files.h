#pragma once
// What comes in and goes out. A file called "-" is the standard input or output.

#include "cli/command.h"
#include "project/reader.h"

namespace zentrik::cli {

inline constexpr const char* outputProblem = "The standard output could not be written.";

// How messages call a file.
std::string shownName(const std::string& file);

// A problem as messages tell it: "FILE:LINE: what is wrong".
std::string problemText(const std::string& file, const ReadProblem& problem);

// The bytes of a project file; throws a Failure that names it when there is none.
std::string readBytes(const std::string& file, Streams& streams);

// The same of any other file.
std::string readAnyBytes(const std::string& file, Streams& streams);

// Writes the whole or nothing, and throws a Failure that names the file.
void writeBytes(const std::string& file, std::string_view bytes, Streams& streams);

// A text that grows while a command runs: on its way to the standard output at once, to a file when whole.
class TextOutput {
public:
    TextOutput(std::string file, Streams& streams) : file_(std::move(file)), streams_(streams) {}
    std::string text;  // append here, then call grown

    void grown() {
        constexpr std::size_t enough = 1U << 16;
        if (file_ == "-" && text.size() > enough) flush();
    }
    void finish() { flush(); }

private:
    std::string file_;
    Streams& streams_;

    void flush() {
        writeBytes(file_, text, streams_);
        text.clear();
    }
};

}  // namespace zentrik::cli
