#pragma once
#include "cli/command.h"

#include <cstdio>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace zentrik::cli {

// What every run of several searches was worth, in a file beside their best: whoever makes the same searches
// again is told instead of making the runs, and so goes on where it was ended. A line a run, appended as
// it is made; of a line that was cut off, by a kill or a full disk, nothing is believed.
class KeptRuns {
public:
    // what: the words and the project that the runs belong to. goesOn: reads the file, which must be there
    // and be of the same; otherwise there must be none yet. Throws a Failure that names the file.
    KeptRuns(std::string file, const std::string& what, bool goesOn, Streams& streams);

    // What a run was worth, if it was made.
    std::optional<double> find(std::int64_t run) const;
    // Throws a Failure where it cannot be written.
    void append(std::int64_t run, double worth);
    // All runs are made.
    void remove();

private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    const std::string file_;
    std::map<std::int64_t, double> worths_;
    std::unique_ptr<std::FILE, Closer> out_;

    std::string read(const std::string& head, Streams& streams);
};

}  // namespace zentrik::cli
