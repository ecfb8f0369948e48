#include "cli/commands/commands.h"
#include "cli/files.h"
#include "cli/numbers.h"
#include "cli/progress.h"
#include "cli/runs/model.h"
#include "measure/run_table.h"
#include "measure/state_hash.h"
#include "model/store.h"
#include "project/writer.h"
#include "sim/model_run.h"

#include <algorithm>
#include <optional>
#include <ostream>

namespace zentrik::cli {

namespace {

constexpr OptionRow options[] = {
    {"o", "out", "FILE", "Write the model as it is then; to the standard output when nothing is asked for."},
    {nullptr, "table", "FILE", "Write a table, a row a step, as comma-separated text."},
    {nullptr, "every", "K", "Give the table a row every K steps only."},
    {nullptr, "nodes", "LIST", "The nodes with columns in the table: 3,5..9, all (as usual) or none."},
    {nullptr, "links", "LIST", "The links with columns in the table: likewise; usually none."},
    {nullptr, "hash", nullptr, "Write a hash of the state that is then, the same on every machine."},
};

TableColumns columnsFor(const Editor& ed, const Arguments& arguments) {
    const auto list = [&](const char* name, const char* usual, std::int32_t last, const char* what) {
        const std::string text = arguments.value(name).value_or(usual);
        return text == "none" ? std::vector<std::int32_t>() : readList(text, last, what);
    };
    std::vector<std::int32_t> nodes = list("nodes", "all", lastNode(ed), "node");
    if (!arguments.has("nodes")) std::erase_if(nodes, [&](std::int32_t i) { return !nodeAt(ed, i).Used; });
    return columnsOf(nodes, list("links", "none", lastLink(ed), "link"));
}

// The rows of the steps that are to have one.
class Table {
public:
    Table(const Editor& ed, const Arguments& arguments, Streams& streams)
        : columns_(columnsFor(ed, arguments)),
          every_(arguments.number("every", 1).value_or(1)),
          output_(*arguments.value("table"), streams) {
        output_.text = tableHeader(columns_);
        appendTableRow(output_.text, ed, 0, columns_);
    }
    void stepped(const Editor& ed, std::int64_t step) {
        if (step % every_ != 0) return;
        appendTableRow(output_.text, ed, step, columns_);
        output_.grown();
    }
    void finish() { output_.finish(); }

private:
    const TableColumns columns_;
    const std::int64_t every_;
    TextOutput output_;
};

void refuseWhatClashes(const Arguments& arguments) {
    for (const char* name : {"every", "nodes", "links"})
        if (arguments.has(name) && !arguments.has("table"))
            throw Failure{wrongUse, "--" + std::string(name) + " is of use with --table only."};
    if (arguments.value("out") == "-" && arguments.value("table") == "-")
        throw Failure{wrongUse, "The standard output cannot take both model and table."};
}

std::string hexText(std::uint64_t value) {
    std::string text(16, '0');
    for (auto digit = text.rbegin(); digit != text.rend(); ++digit, value >>= 4)
        *digit = "0123456789abcdef"[value & 15U];
    return text;
}

// Gives how many steps were made; fewer than asked for where the model could not go on.
std::int64_t makeSteps(Editor& ed, std::int64_t steps, std::optional<Table>& table, Streams& streams) {
    constexpr std::int64_t stride = 64;  // steps between two looks at the clock
    Progress progress(streams, "steps", steps);
    beginRun(ed);
    for (std::int64_t step = 1; step <= steps; ++step) {
        if (!stepRun(ed)) return step - 1;
        if (table) table->stepped(ed, step);
        if (step % stride == 0) progress.show(step);
    }
    return steps;
}

ExitStatus run(const Arguments& arguments, Streams& streams) {
    refuseWhatClashes(arguments);
    const std::string& file = arguments.operands.front();
    Editor ed = openModel(file, arguments, streams);
    const std::int64_t steps = stepsToRun(ed, arguments);
    std::optional<Table> table;
    if (arguments.has("table")) table.emplace(ed, arguments, streams);

    const std::int64_t made = makeSteps(ed, steps, table, streams);
    if (table) table->finish();
    const bool nothingAsked = !arguments.has("table") && !arguments.has("hash");
    if (const auto out = arguments.value("out"); out || nothingAsked)
        writeBytes(out.value_or("-"), projectBytes(ed), streams);
    if (arguments.has("hash")) streams.out << hexText(stateHash(ed)) << "\n";
    if (made < steps)
        throw Failure{finding,
                      shownName(file) + ": after step " + std::to_string(made) + ": " + whyStopped(ed)};
    return fine;
}

}  // namespace

const Command runCommand{.name = "run",
                         .operands = "FILE",
                         .most = 1,
                         .summary = "Runs a project from the press of the start button on, without painting.",
                         .details = modelDetails,
                         .options = {options, lengthOptions(), modelOptions()},
                         .run = run};

}  // namespace zentrik::cli
