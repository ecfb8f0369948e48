#pragma once
#include <string>
#include <vector>

namespace zentrik {

// What is wrong with a file.
struct ReadProblem {
    std::size_t line = 0;  // counted from 1; 0 = the file as a whole
    std::string text;
    std::size_t field = 0;  // of the line, counted from 1; 0 = the line as a whole
};
using ReadProblems = std::vector<ReadProblem>;

}  // namespace zentrik
