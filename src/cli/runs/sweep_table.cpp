#include "cli/runs/sweep_table.h"

#include "cli/command.h"
#include "cli/numbers.h"

namespace zentrik::cli {

namespace {

constexpr std::string_view firstName = "run of ";

std::optional<std::int64_t> numberBefore(std::string_view text) {
    return readWhole(text.substr(0, text.find(',')));
}

}  // namespace

std::string sweepHeader(std::int64_t runs, std::string_view otherNames) {
    return std::string(firstName) + std::to_string(runs) + std::string(otherNames) + "\n";
}

SweepTable readSweepTable(std::string_view text, const std::string& name) {
    const auto fail = [&](std::size_t line, const char* what) {
        return Failure{finding, name + ":" + std::to_string(line) + ": " + what};
    };
    SweepTable table;
    if (!text.ends_with('\n')) throw fail(1, "It is no whole table of a sweep.");
    std::size_t number = 0;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n') + 1);
        text.remove_prefix(line.size());
        if (++number == 1) {
            const bool named = line.starts_with(firstName);
            const auto runs = named ? numberBefore(line.substr(firstName.size())) : std::nullopt;
            if (!runs) throw fail(1, "It is no table of a sweep.");
            table.header = line;
            table.runs = *runs;
            continue;
        }
        const auto run = numberBefore(line);
        if (!run || *run < 1 || *run > table.runs)
            throw fail(number, "The row begins with no number of a run.");
        if (!table.rows.emplace(*run, line).second) throw fail(number, "The run stands there twice.");
    }
    return table;
}

}  // namespace zentrik::cli
