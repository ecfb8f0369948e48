#include "basics/numbers.h"
#include "cli/commands/commands.h"
#include "cli/files.h"
#include "cli/numbers.h"
#include "cli/progress.h"
#include "cli/runs/experiment.h"
#include "cli/runs/model.h"
#include "cli/runs/sweep_table.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <thread>

namespace zentrik::cli {

namespace {

constexpr std::int64_t mostRuns = 10'000'000, mostJobs = 1024;

constexpr OptionRow options[] = {
    {"j", "jobs", "J", "Make so many runs at a time; usually one for each of the machine's cores."},
    {nullptr, "shard", "I/N",
     "Make every N-th run only, from the I-th on, and write that part of the table."},
    {"o", "out", "FILE", "Write the table there instead of to the standard output."},
};

// Every combination of the variables' values, numbered from 1; the last variable changes fastest.
class Combinations {
public:
    explicit Combinations(const std::vector<Variable>& variables) : variables_(variables) {
        for (const Variable& variable : variables_) {
            if (variable.step == 0)
                throw Failure{wrongUse,
                              "The range of " + variable.target.name() + " needs a step, as in 0:10:0.5."};
            if ((count_ *= variable.count()) > mostRuns)
                throw Failure{wrongUse, "These would be more than " + std::to_string(mostRuns) + " runs."};
        }
    }
    std::int64_t count() const { return count_; }
    std::vector<double> values(std::int64_t run) const {
        std::vector<double> values(variables_.size());
        std::int64_t rest = run - 1;
        for (std::size_t m = values.size(); m-- > 0; rest /= variables_[m].count())
            values[m] = variables_[m].value(rest % variables_[m].count());
        return values;
    }

private:
    const std::vector<Variable>& variables_;
    std::int64_t count_ = 1;
};

// The runs that one of several command lines makes.
struct Shard {
    std::int64_t first = 1, stride = 1;
};
Shard readShard(const Arguments& arguments) {
    const auto text = arguments.value("shard");
    if (!text) return {};
    const std::vector<std::string> parts = split(*text, '/');
    const auto first = readWhole(parts.front()), stride = readWhole(parts.back());
    if (parts.size() != 2 || !first || !stride || *first < 1 || *first > *stride)
        throw Failure{wrongUse, "--shard takes I/N with I from 1 to N, not \"" + *text + "\"."};
    return {*first, *stride};
}

std::string quoted(const std::string& text) {
    return text.find_first_of(",\"") == std::string::npos ? text : "\"" + text + "\"";
}

std::string namesOf(const Experiment& experiment) {
    std::string names;
    for (const Variable& variable : experiment.variables()) names += "," + quoted(variable.target.name());
    for (const Measure* measure : experiment.asked()) {
        names.append(",").append(measure->name);
        if (*measure->unit != '\0') names.append(" (").append(measure->unit).append(")");
    }
    return names + ",stopped";
}

std::string rowOf(std::int64_t run, const std::vector<double>& values, const Trial& trial) {
    std::string row = std::to_string(run);
    for (const double value : values) row += "," + realText(value);
    for (const double value : trial.measured) row += "," + realText(value);
    return row + "," + quoted(trial.stopped) + "\n";
}

// Threads that make runs, one after the other, until all are made or one fails.
class Workers {
public:
    Workers(const Experiment& experiment, const Combinations& combinations, const Shard& shard)
        : experiment_(experiment), combinations_(combinations), shard_(shard) {
        const std::int64_t behind = combinations.count() - shard.first;
        rows_.resize(behind < 0 ? 0 : static_cast<std::size_t>(behind / shard.stride + 1));
    }

    const std::vector<std::string>& make(std::int64_t jobs, Streams& streams) {
        Progress progress(streams, "runs", static_cast<std::int64_t>(rows_.size()));
        {
            std::vector<std::jthread> others;
            for (std::int64_t job = 1; job < jobs; ++job) others.emplace_back([this] { work([] {}); });
            work([&] { progress.show(static_cast<std::int64_t>(done_)); });
        }
        if (failure_) std::rethrow_exception(failure_);
        return rows_;
    }

private:
    const Experiment& experiment_;
    const Combinations& combinations_;
    const Shard shard_;
    std::vector<std::string> rows_;
    std::atomic<std::size_t> next_ = 0, done_ = 0;
    std::exception_ptr failure_;
    std::once_flag failed_;

    template <class Tell>
    void work(Tell tell) {
        Editor ed;
        for (std::size_t m = next_++; m < rows_.size(); m = next_++) {
            const std::int64_t run = shard_.first + static_cast<std::int64_t>(m) * shard_.stride;
            try {
                const std::vector<double> values = combinations_.values(run);
                rows_[m] = rowOf(run, values, experiment_.run(ed, values));
            } catch (...) {
                std::call_once(failed_, [this] { failure_ = std::current_exception(); });
                next_ = rows_.size();
            }
            ++done_;
            tell();
        }
    }
};

ExitStatus sweep(const Arguments& arguments, Streams& streams) {
    const Shard shard = readShard(arguments);
    const std::int64_t cores = std::max(1U, std::thread::hardware_concurrency());
    const std::int64_t jobs = std::min(arguments.number("jobs", 1).value_or(cores), mostJobs);
    const Experiment experiment(openModel(arguments.operands.front(), arguments, streams), arguments);
    const Combinations combinations(experiment.variables());
    Workers workers(experiment, combinations, shard);
    std::string table = sweepHeader(combinations.count(), namesOf(experiment));
    for (const std::string& row : workers.make(jobs, streams)) table += row;
    writeBytes(arguments.value("out").value_or("-"), table, streams);
    return fine;
}

}  // namespace

const Command sweepCommand{
    .name = "sweep",
    .operands = "FILE",
    .most = 1,
    .summary =
        "Runs a project with every combination of some numbers, and writes a table of what came of each.",
    .details = [] { return measuresHelp() + "\n\n" + modelDetails(); },
    .options = {experimentOptions(), lengthOptions(), options, modelOptions()},
    .run = sweep};

}  // namespace zentrik::cli
