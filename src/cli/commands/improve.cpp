#include "basics/numbers.h"
#include "cli/commands/commands.h"
#include "cli/files.h"
#include "cli/interrupt.h"
#include "cli/progress.h"
#include "cli/runs/evolution.h"
#include "cli/runs/experiment.h"
#include "cli/runs/kept_runs.h"
#include "cli/runs/model.h"
#include "files/write_target.h"
#include "host/quiet_host.h"
#include "project/hand_over.h"
#include "project/writer.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <limits>
#include <mutex>
#include <optional>
#include <ostream>
#include <thread>
#include <utility>

namespace zentrik::cli {

namespace {

constexpr std::int64_t mostRuns = 1'000'000'000;

constexpr OptionRow options[] = {
    {nullptr, "runs", "N", "Make at most so many runs; 1000 as usual."},
    {nullptr, "seed", "S", "Begin the search elsewhere; the same seed gives the same search. 1 as usual."},
    {"j", "jobs", "J",
     "Make so many runs at a time, 12 at most; usually one for each of the machine's cores."},
    {nullptr, "continue", nullptr,
     "Go on with the search of the same options that was ended before its last run."},
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

// What the runs of a search depend on.
std::string identityOf(const Experiment& experiment, const Arguments& arguments) {
    std::string text = projectBytes(experiment.base());
    for (const auto& [name, values] : arguments.values)
        if (name != "jobs" && name != "continue" && name != "out") {
            text += "--" + name;
            for (const std::string& value : values) text += "=" + value + "\n";
        }
    return text;
}

class Search {
public:
    Search(const Experiment& experiment, const Arguments& arguments, Streams& streams)
        : experiment_(experiment),
          streams_(streams),
          file_(*arguments.value("out")),
          sign_(arguments.has("least") ? -1 : 1),
          runs_(std::min<std::int64_t>(arguments.number("runs", 1).value_or(1000), mostRuns)),
          seed_(arguments.number("seed", 0).value_or(1)),
          jobs_(std::min<std::int64_t>(arguments.number("jobs", 1).value_or(coresHere()), Evolution::count)),
          kept_(file_ + ".runs", identityOf(experiment, arguments), arguments.has("continue"), streams),
          progress_(streams, "runs", runs_) {}

    void go() {
        Editor ed;
        start_ = best_.worth = worthOf(ed, {});
        Evolution evolution(startPlace(), static_cast<std::uint64_t>(seed_));
        while (made_ < runs_ && !hasToEnd()) {
            std::vector<Evolution::Place> places = evolution.ask();
            if (runs_ - made_ < std::ssize(places)) places.resize(static_cast<std::size_t>(runs_ - made_));
            const std::vector<double> worths = makeAll(places);
            if (worths.size() == Evolution::count) evolution.tell(worths);
        }
        if (failure_) std::rethrow_exception(failure_);
        if (!isWritten_) writeBest();
        if (!Interrupt::came()) kept_.remove();
    }

    void report() const {
        const Measure& measure = *experiment_.asked().front();
        const auto text = [&](double worth) {
            return worth <= worst ? "none, as it cannot go on" : realText(sign_ * worth) + " " + measure.unit;
        };
        streams_.out << measure.name << " at first: " << text(start_) << "\n"
                     << measure.name << " at best: " << text(best_.worth) << "\n"
                     << "runs: " << made_ << (Interrupt::came() ? ", then interrupted" : "") << "\n";
        if (!best_.isFound()) return;
        Editor ed;
        experiment_.prepare(ed, best_.values);
        for (const Variable& variable : experiment_.variables())
            streams_.out << variable.target.name() << "=" << realText(variable.target.valueIn(ed)) << "\n";
    }
    bool hasFound() const { return best_.isFound(); }

private:
    static constexpr double worst = -std::numeric_limits<float>::max();  // of what cannot go on

    struct Found {
        std::vector<double> values;
        double worth = worst;
        std::int64_t run = 0;

        bool isFound() const { return !values.empty(); }
        // Of equals the first one, whichever thread was faster.
        bool yieldsTo(double other, std::int64_t otherRun) const {
            return other > worth || (other == worth && isFound() && otherRun < run);
        }
    };

    const Experiment& experiment_;
    Streams& streams_;
    const std::string file_;
    const double sign_;  // worth is what is measured, turned so that more is better
    const std::int64_t runs_, seed_, jobs_;
    KeptRuns kept_;
    Progress progress_;
    double start_ = worst;
    std::int64_t made_ = 1;  // with the run of the project as it is
    Found best_;
    bool isWritten_ = true;  // the best, if one was found
    std::mutex one_;         // at a time, of what follows a run
    std::exception_ptr failure_;

    static std::int64_t coresHere() { return std::max(1U, std::thread::hardware_concurrency()); }
    bool hasToEnd() const { return Interrupt::came() || failure_; }

    Evolution::Place startPlace() const {
        Evolution::Place place;
        for (const Variable& v : experiment_.variables())
            place.push_back(
                std::clamp((v.target.valueIn(experiment_.base()) - v.from) / (v.to - v.from), 0.0, 1.0));
        return place;
    }
    std::vector<double> valuesAt(const Evolution::Place& place) const {
        std::vector<double> values;
        for (std::size_t m = 0; m < place.size(); ++m) {
            const Variable& v = experiment_.variables()[m];
            values.push_back(asFiled(v.from + (v.to - v.from) * place[m]));
        }
        return values;
    }

    double worthOf(Editor& ed, const std::vector<double>& values) const {
        const Trial trial = experiment_.run(ed, values, &Interrupt::came);
        if (!trial.stopped.empty()) return worst;
        return std::max(sign_ * trial.measured.front(), worst);
    }

    // The worths of as many places as were tried, which is fewer where the search has to end.
    std::vector<double> makeAll(const std::vector<Evolution::Place>& places) {
        std::vector<double> worths(places.size());
        const std::int64_t first = made_;
        std::atomic<std::size_t> next = 0;
        const auto work = [&] {
            Editor ed;
            for (std::size_t k = next++; k < places.size(); k = next++)
                worths[k] = make(ed, first + static_cast<std::int64_t>(k), places[k]);
        };
        {
            std::vector<std::jthread> others;
            for (std::int64_t job = 1; job < jobs_; ++job) others.emplace_back(work);
            work();
        }
        if (hasToEnd()) worths.clear();
        return worths;
    }

    // Makes a run, or is told what it was worth when it was made. Whatever thread it is on, a failure ends
    // all.
    double make(Editor& ed, std::int64_t run, const Evolution::Place& place) {
        try {
            const std::vector<double> values = valuesAt(place);
            const std::optional<double> before = kept_.find(run);
            const double worth = before ? *before : worthOf(ed, values);
            const std::lock_guard lock(one_);
            if (hasToEnd()) return worst;
            note(run, values, worth, before.has_value());
            return worth;
        } catch (...) {
            const std::lock_guard lock(one_);
            if (!failure_) failure_ = std::current_exception();
            return worst;
        }
    }

    void note(std::int64_t run, const std::vector<double>& values, double worth, bool isKept) {
        if (best_.yieldsTo(worth, run)) {
            best_ = {values, worth, run};
            isWritten_ = false;
            if (!isKept) writeBest();  // whatever happens from here on, it is on disk
        }
        if (!isKept) kept_.append(run, worth);
        ++made_;
        progress_.show(made_, ", best " + realText(sign_ * best_.worth));
    }

    void writeBest() {
        Editor ed;
        experiment_.prepare(ed, best_.values);
        writeBytes(file_, projectBytes(ed), streams_);
        isWritten_ = true;
    }
};

void refuseWhatCannotBeFound(const Experiment& experiment, const Arguments& arguments) {
    const std::string file = arguments.value("out").value_or("-");
    if (file == "-") throw Failure{wrongUse, "--out must name a file for the best."};
    if (const std::string problem = writeTarget(file, {}).problem; !problem.empty())
        throw Failure{finding, file + ": " + problem};
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
    if (!search.hasFound()) throw Failure{finding, "Nothing better was found; no file was written."};
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
            return "Tries a dozen sets of numbers at a time, and draws the next ones to the best. Ctrl+C "
                   "ends it and "
                   "keeps the best; beside it, FILE.runs holds what every run was worth, for --continue, "
                   "until "
                   "the last is made.\n\n" +
                   measuresHelp() + "\n\n" + modelDetails();
        },
    .options = {experimentOptions(), lengthOptions(), options, modelOptions()},
    .run = improve};

}  // namespace zentrik::cli
