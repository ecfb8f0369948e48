#pragma once
// The table of a sweep: a line of names, the first of which tells how many runs there are in all, then a row
// a run, which begins with its number.

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace zentrik::cli {

std::string sweepHeader(std::int64_t runs, std::string_view otherNames);

// Rows by the numbers of their runs. Throws a Failure that calls the text `name` when it is no such table.
struct SweepTable {
    std::string header;
    std::int64_t runs = 0;
    std::map<std::int64_t, std::string> rows;
};
SweepTable readSweepTable(std::string_view text, const std::string& name);

}  // namespace zentrik::cli
