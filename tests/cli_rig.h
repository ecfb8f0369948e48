#pragma once
// Runs command lines of the companion program.

#include "cli/commands/commands.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace zentrik {

struct Said {
    int status = 0;
    std::string out, error;
};

inline Said zentrikCli(const std::vector<std::string>& words, const std::string& input = {}) {
    std::istringstream in(input);
    std::ostringstream out, error;
    cli::Streams streams{in, out, error};
    const int status = cli::runCommandLine(words, streams);
    return {status, out.str(), error.str()};
}

inline std::string sample(const std::string& name) {
    return std::string(ZENTRIK_SOURCE_DIR) + "/zoo/" + name + ".bot";
}

inline std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

// A command line whose files go to a folder of its own.
class CommandLine : public testing::Test {
protected:
    TemporaryFolder folder_;

    std::string file(const std::string& name) const { return (folder_.path / name).string(); }
};

}  // namespace zentrik
