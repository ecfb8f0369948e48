#include "app/plot/run_reader.h"

#include <QThread>
#include <utility>

namespace zentrik {

namespace {

constexpr std::int64_t few = 64;  // steps that nobody waits for

// Reads on from where the series ends, or from the stretch's begin.
void readOn(RunSeries& series, const RecordedRun& run, const Stretch& stretch,
            const std::function<bool(std::int64_t step)>& goOn) {
    goThrough(run, std::max(stretch.begin, series.end() - 1), stretch.end,
              [&](const Editor& ed, std::int64_t step) {
                  if (step >= series.end()) series.add(ed);
                  return goOn(step);
              });
}

}  // namespace

RunReader::RunReader() = default;

RunReader::~RunReader() { cancel(); }

void RunReader::choose(std::vector<Curve> curves) {
    curves_ = std::move(curves);
    begin(series_.begin());
}

void RunReader::begin(std::int64_t step) {
    cancel();
    series_ = RunSeries(curves_, step);
    afresh_ = true;
}

// What a run shares with the one that it left stays.
void RunReader::cutTo(const RecordedRun& run, const Stretch& stretch) {
    const std::uint64_t former = std::exchange(branch_, run.branch);
    if (stretch.begin != series_.begin() || (former != run.branch && former != run.parent))
        return begin(stretch.begin);
    if (former == run.branch) return;
    cancel();
    if (run.branchedAt + 1 >= series_.end()) return;
    series_.cut(run.branchedAt + 1);
    afresh_ = true;
}

RunReader::News RunReader::follow(const Timeline& timeline, const Editor& ed) {
    const RecordedRun& run = timeline.run;
    if (run.moments.empty()) {
        if (series_.size() > 0) begin(0);
        return std::exchange(afresh_, false) ? News::afresh : News::nothing;
    }
    const Stretch stretch = stretchAt(run, timeline.at);
    cutTo(run, stretch);
    const std::int64_t missing = thread_ ? 0 : stretch.end + 1 - series_.end();
    const bool asItStands = timeline.at == run.last && !timeline.edited && series_.size() > 0;
    if (missing == 1 && asItStands)
        series_.add(ed);
    else if (missing > few)
        start(run, stretch);
    else if (missing > 0)
        readOn(series_, run, stretch, [](std::int64_t) { return true; });
    if (std::exchange(afresh_, false)) return News::afresh;
    return missing > 0 ? News::more : News::nothing;
}

void RunReader::start(const RecordedRun& run, const Stretch& stretch) {
    cancelled_ = false;
    done_ = 0;
    thread_.reset(QThread::create([this, run, stretch, series = series_]() mutable {
        const auto steps = static_cast<double>(stretch.end - stretch.begin + 1);
        readOn(series, run, stretch, [&](std::int64_t step) {
            done_ = static_cast<double>(step - stretch.begin) / steps;
            return !cancelled_;
        });
        made_ = std::move(series);
    }));
    connect(thread_.get(), &QThread::finished, this, &RunReader::finish);
    thread_->start(QThread::LowPriority);
}

// The news of a thread that was cancelled may still come when another one reads.
void RunReader::finish() {
    if (!thread_ || !thread_->isFinished()) return;
    thread_->wait();
    thread_.reset();
    series_ = std::move(made_);
    afresh_ = true;
    read();
}

void RunReader::cancel() {
    if (!thread_) return;
    cancelled_ = true;
    thread_->wait();
    thread_.reset();
}

std::optional<double> RunReader::progress() const {
    if (!thread_) return {};
    return done_;
}

}  // namespace zentrik
