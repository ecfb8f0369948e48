#include "cli/runs/experiment.h"

#include "cli/close_names.h"
#include "cli/numbers.h"
#include "cli/runs/model.h"
#include "sim/model_run.h"
#include "sim/step.h"

#include <algorithm>
#include <cmath>

namespace zentrik::cli {

namespace {

constexpr std::int64_t mostRuns = 10'000'000;

constexpr OptionRow options[] = {
    {nullptr, "vary", "NAME=RANGE",
     "Vary a number, from FROM:TO or FROM:TO:STEP. May be given several times."},
    {nullptr, "measure", "WHAT", "Measure this of every run; several are separated by commas."},
};

Variable readVariable(const Editor& ed, const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos)
        throw Failure{wrongUse, "--vary takes NAME=FROM:TO or NAME=FROM:TO:STEP, not \"" + text + "\"."};
    Variable variable{Settable(ed, text.substr(0, equals))};
    const std::vector<std::string> parts = split(std::string_view(text).substr(equals + 1), ':');
    std::vector<double> numbers;
    for (const std::string& part : parts)
        if (const auto number = readNumber(part)) numbers.push_back(*number);
    if (numbers.size() != parts.size() || parts.size() < 2 || parts.size() > 3)
        throw Failure{wrongUse, "\"" + text + "\" has no range such as 0:10 or 0:10:0.5."};
    variable.from = numbers[0];
    variable.to = numbers[1];
    if (numbers.size() == 3) variable.step = numbers[2];
    const bool backwards = numbers.size() == 3 && variable.step <= 0;
    if (backwards || variable.to < variable.from || !(variable.count() <= mostRuns))
        throw Failure{wrongUse,
                      "\"" + text + "\" must go upwards, in at most " + std::to_string(mostRuns) + " steps."};
    return variable;
}

const Measure* findMeasure(const std::string& name) {
    std::vector<std::string> names;
    for (const Measure& measure : measures()) {
        if (plainName(measure.name) == plainName(name)) return &measure;
        names.emplace_back(measure.name);
    }
    throw Failure{wrongUse, "Nothing called \"" + name + "\" can be measured." + closeNames(name, names)};
}

}  // namespace

std::span<const OptionRow> experimentOptions() { return options; }

std::string measuresHelp() {
    std::string text = "WHAT is one of:";
    for (const Measure& measure : measures())
        text += std::string("\n") + measure.name + ": " + measure.meaning;
    return text;
}

// A step that fits but for a rounding fits.
std::int64_t Variable::count() const {
    if (step == 0) return 1;
    const double steps = std::floor((to - from) / step * (1 + 1e-12) + 1e-9);
    return steps < static_cast<double>(mostRuns) ? static_cast<std::int64_t>(steps) + 1 : mostRuns + 1;
}

double Variable::value(std::int64_t number) const { return from + static_cast<double>(number) * step; }

Experiment::Experiment(Editor base, const Arguments& arguments)
    : arguments_(arguments), base_(std::move(base)) {
    for (const std::string& text : arguments.all("vary")) variables_.push_back(readVariable(base_, text));
    for (const std::string& list : arguments.all("measure"))
        for (const std::string& name : split(list, ',')) asked_.push_back(findMeasure(name));
    if (variables_.empty()) throw Failure{wrongUse, "--vary must say what varies."};
    if (asked_.empty()) throw Failure{wrongUse, "--measure must say what to measure."};
    closely_ = std::any_of(asked_.begin(), asked_.end(), [](const Measure* m) { return m->closely; });
    Editor ed = base_;
    stepsToRun(ed, arguments_);
    for (const Variable& variable : variables_) {
        variable.target.setIn(ed, variable.to);
        variable.target.setIn(ed, variable.from);
    }
}

void Experiment::prepare(Editor& ed, const std::vector<double>& values) const {
    ed = base_;
    for (std::size_t m = 0; m < values.size(); ++m) variables_[m].target.setIn(ed, values[m]);
}

Trial Experiment::run(Editor& ed, const std::vector<double>& values, bool (*ends)()) const {
    prepare(ed, values);
    const std::int64_t steps = stepsToRun(ed, arguments_);
    const float dt = stepSize(ed);
    beginRun(ed);
    RunWatch watch(ed, closely_);
    const auto goesOn = [&] { return watch.steps < steps && (ends == nullptr || !ends()) && stepRun(ed); };
    while (goesOn()) watch.stepped(ed, dt);
    Trial trial;
    for (const Measure* measure : asked_) trial.measured.push_back(measure->of(watch, ed));
    if (watch.steps < steps) trial.stopped = whyStopped(ed);
    return trial;
}

}  // namespace zentrik::cli
