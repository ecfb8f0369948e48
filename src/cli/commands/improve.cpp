#include "basics/numbers.h"
#include "cli/commands/commands.h"
#include "cli/files.h"
#include "cli/interrupt.h"
#include "cli/progress.h"
#include "cli/runs/experiment.h"
#include "cli/runs/model.h"
#include "host/quiet_host.h"
#include "project/hand_over.h"
#include "project/writer.h"

#include <nlopt.hpp>

#include <algorithm>
#include <exception>
#include <limits>
#include <ostream>

namespace zentrik::cli {

namespace {

constexpr std::int64_t mostRuns = 1'000'000'000;

constexpr OptionRow options[] = {
    {nullptr, "runs", "N", "Make at most so many runs; 1000 as usual."},
    {nullptr, "seed", "S", "Begin the search elsewhere; the same seed gives the same search. 1 as usual."},
    {nullptr, "least", nullptr, "Look for the smallest measure, not for the greatest."},
    {"o", "out", "FILE", "Keep the best project there, from the first that is better on."},
};

// What it is after it went through a project file, so that whoever opens the best sees what was measured.
double asFiled(double value) { return leadingNumber(realText(toReal(value))); }
Editor asFiled(Editor ed) {
    QuietHost nobody;
    handOver(ed, nobody, parseProject(projectBytes(ed)).project.value());
    return ed;
}

class Search {
public:
    Search(const Experiment& experiment, const Arguments& arguments, Streams& streams)
        : experiment_(experiment),
          streams_(streams),
          file_(*arguments.value("out")),
          sign_(arguments.has("least") ? -1 : 1),
          runs_(std::min<std::int64_t>(arguments.number("runs", 1).value_or(1000), mostRuns)),
          progress_(streams, "runs", runs_) {
        nlopt::srand(static_cast<unsigned long>(arguments.number("seed", 0).value_or(1)));
        for (const Variable& variable : experiment.variables()) {
            low_.push_back(variable.from);
            high_.push_back(variable.to);
            const double now = variable.target.valueIn(experiment.base());
            best_.push_back(std::clamp(now, variable.from, variable.to));
        }
    }

    void go() {
        start_ = tryOut({});
        worth_ = start_;
        // Three quarters to look everywhere, the rest to climb from the best place that was found.
        search(nlopt::GN_CRS2_LM, runs_ * 3 / 4);
        search(nlopt::LN_SBPLX, runs_);
        if (failure_) std::rethrow_exception(failure_);
    }

    void report() {
        const Measure& measure = *experiment_.asked().front();
        const auto text = [&](double worth) {
            return worth <= worst ? "none, as it cannot go on" : realText(sign_ * worth) + " " + measure.unit;
        };
        streams_.out << measure.name << " at first: " << text(start_) << "\n"
                     << measure.name << " at best: " << text(worth_) << "\n"
                     << "runs: " << made_ << (Interrupt::came() ? ", then interrupted" : "") << "\n";
        if (!improved_) return;
        Editor ed;
        experiment_.prepare(ed, best_);
        for (const Variable& variable : experiment_.variables())
            streams_.out << variable.target.name() << "=" << realText(variable.target.valueIn(ed)) << "\n";
    }
    bool hasImproved() const { return improved_; }

private:
    static constexpr double worst = -std::numeric_limits<float>::max();  // of what cannot go on

    const Experiment& experiment_;
    Streams& streams_;
    const std::string file_;
    const double sign_;  // worth is what is measured, turned so that more is better
    const std::int64_t runs_;
    Progress progress_;
    std::int64_t made_ = 0;
    std::vector<double> low_, high_, best_;
    double start_ = worst, worth_ = worst;
    bool improved_ = false;
    Editor ed_;
    std::exception_ptr failure_;

    // The worth of some values; that of the project as it is without any.
    double tryOut(const std::vector<double>& values) {
        const Trial trial = experiment_.run(ed_, values, &Interrupt::came);
        ++made_;
        if (!trial.stopped.empty()) return worst;
        return std::max(sign_ * trial.measured.front(), worst);
    }

    double tryNext(const std::vector<double>& wanted) {
        std::vector<double> values(wanted.size());
        std::transform(wanted.begin(), wanted.end(), values.begin(),
                       [](double value) { return asFiled(value); });
        const double worth = tryOut(values);
        if (Interrupt::came()) throw nlopt::forced_stop();
        if (worth > worth_) keep(values, worth);
        progress_.show(made_, ", best " + realText(sign_ * worth_));
        return worth;
    }

    // Whatever happens from here on, the best is on disk.
    void keep(const std::vector<double>& values, double worth) {
        experiment_.prepare(ed_, values);
        writeBytes(file_, projectBytes(ed_), streams_);
        best_ = values;
        worth_ = worth;
        improved_ = true;
    }

    // Goes on until so many runs were made in all.
    void search(nlopt::algorithm algorithm, std::int64_t until) {
        if (failure_ || Interrupt::came() || made_ >= until) return;
        nlopt::opt optimiser(algorithm, static_cast<unsigned>(low_.size()));
        optimiser.set_lower_bounds(low_);
        optimiser.set_upper_bounds(high_);
        optimiser.set_maxeval(static_cast<int>(until - made_));
        std::vector<double> steps(low_.size());
        for (std::size_t m = 0; m < steps.size(); ++m) steps[m] = (high_[m] - low_[m]) / 20;
        optimiser.set_initial_step(steps);
        optimiser.set_xtol_rel(1e-6);
        optimiser.set_max_objective(
            [](const std::vector<double>& values, std::vector<double>&, void* search) {
                return static_cast<Search*>(search)->guarded(values);
            },
            this);
        std::vector<double> place = best_;
        double worth = 0;
        try {
            optimiser.optimize(place, worth);
        } catch (const nlopt::forced_stop&) {
        } catch (const nlopt::roundoff_limited&) {  // it has come as near as it can
        }
    }

    // The library lets no other exception through than its own.
    double guarded(const std::vector<double>& values) {
        try {
            return tryNext(values);
        } catch (const Failure&) {
            failure_ = std::current_exception();
            throw nlopt::forced_stop();
        }
    }
};

void refuseWhatCannotBeFound(const Experiment& experiment, const Arguments& arguments) {
    const std::string file = arguments.value("out").value_or("-");
    if (file == "-") throw Failure{wrongUse, "--out must name a file for the best."};
    if (experiment.asked().size() > 1) throw Failure{wrongUse, "Only one measure can be improved."};
    for (const Variable& variable : experiment.variables())
        if (variable.from == variable.to || variable.step != 0)
            throw Failure{wrongUse,
                          "The range of " + variable.target.name() + " must be FROM:TO with room between."};
}

ExitStatus improve(const Arguments& arguments, Streams& streams) {
    const Experiment experiment(asFiled(openModel(arguments.operands.front(), arguments, streams)),
                                arguments);
    refuseWhatCannotBeFound(experiment, arguments);
    const Interrupt interrupt;
    Search search(experiment, arguments, streams);
    search.go();
    search.report();
    if (!search.hasImproved()) throw Failure{finding, "Nothing better was found; no file was written."};
    return fine;
}

}  // namespace

const Command improveCommand{
    .name = "improve",
    .operands = "FILE",
    .most = 1,
    .summary =
        "Looks for the numbers with which a project does most, as walking farthest, and keeps the best.",
    .details =
        [] {
            return "Looks everywhere at first, then climbs from the best. Ctrl+C ends it and keeps the "
                   "best.\n\n" +
                   measuresHelp() + "\n\n" + modelDetails();
        },
    .options = {experimentOptions(), lengthOptions(), options, modelOptions()},
    .run = improve};

}  // namespace zentrik::cli
