#include "cli/commands/commands.h"
#include "cli/files.h"
#include "cli/runs/sweep_table.h"

#include <algorithm>

namespace zentrik::cli {

namespace {

constexpr OptionRow options[] = {
    {"o", "out", "FILE", "Write the table there instead of to the standard output."},
};

// The runs that no part holds, as far as a message can name them.
std::string missingRuns(const SweepTable& whole) {
    constexpr std::int64_t named = 5;
    const std::int64_t missing = whole.runs - static_cast<std::int64_t>(whole.rows.size());
    std::string text;
    std::int64_t found = 0;
    for (std::int64_t run = 1; run <= whole.runs && found < std::min(missing, named); ++run)
        if (!whole.rows.contains(run)) text += (found++ > 0 ? ", " : "") + std::to_string(run);
    return missing > named ? text + " and " + std::to_string(missing - named) + " more" : text;
}

void add(SweepTable& whole, const SweepTable& part, const std::string& name) {
    if (whole.header.empty()) whole.header = part.header, whole.runs = part.runs;
    if (part.header != whole.header)
        throw Failure{finding, name + ":1: It is a part of another sweep than the first."};
    for (const auto& [run, row] : part.rows)
        if (!whole.rows.emplace(run, row).second && whole.rows.at(run) != row)
            throw Failure{finding, name + ": Run " + std::to_string(run) + " differs from another part's."};
}

ExitStatus merge(const Arguments& arguments, Streams& streams) {
    SweepTable whole;
    for (const std::string& file : arguments.operands)
        add(whole, readSweepTable(readAnyBytes(file, streams), shownName(file)), shownName(file));
    if (const std::string missing = missingRuns(whole); !missing.empty())
        throw Failure{finding,
                      "Of " + std::to_string(whole.runs) + " runs these are missing: " + missing + "."};
    std::string table = whole.header;
    for (const auto& [run, row] : whole.rows) table += row;
    writeBytes(arguments.value("out").value_or("-"), table, streams);
    return fine;
}

}  // namespace

const Command mergeCommand{.name = "merge",
                           .operands = "PART...",
                           .summary = "Joins the tables of a sweep's shards to the table of the whole sweep.",
                           .options = {options},
                           .run = merge};

}  // namespace zentrik::cli
