#pragma once
// Runs of one model that differ in some of its numbers, and what is measured of each.

#include "cli/command.h"
#include "cli/runs/settable.h"
#include "measure/run_measures.h"

namespace zentrik::cli {

// --vary and --measure.
std::span<const OptionRow> experimentOptions();
// The measures there are, for the help.
std::string measuresHelp();

// A number that varies: NAME=FROM:TO, or NAME=FROM:TO:STEP.
struct Variable {
    Settable target;
    double from = 0, to = 0, step = 0;  // step: 0 where none was given

    // The values of a sweep are those from `from` by `step` that do not go beyond `to`.
    std::int64_t count() const;
    double value(std::int64_t number) const;
};

struct Trial {
    std::vector<double> measured;  // as asked for
    std::string stopped;           // why it ended early, in words; the empty text when it did not
};

class Experiment {
public:
    // Throws a Failure when anything asked for cannot be varied or measured.
    Experiment(Editor base, const Arguments& arguments);

    const Editor& base() const { return base_; }
    const std::vector<Variable>& variables() const { return variables_; }
    const std::vector<const Measure*>& asked() const { return asked_; }

    // Makes `ed` the model with these values for the first variables, before its run; the others stay as they
    // are.
    void prepare(Editor& ed, const std::vector<double>& values) const;
    // Prepares it and runs it, until `ends` says so. Any thread may call it with an editor of its own.
    Trial run(Editor& ed, const std::vector<double>& values, bool (*ends)() = nullptr) const;

private:
    const Arguments& arguments_;
    Editor base_;
    std::vector<Variable> variables_;
    std::vector<const Measure*> asked_;
    bool closely_ = false;  // every step must be looked at
};

}  // namespace zentrik::cli
