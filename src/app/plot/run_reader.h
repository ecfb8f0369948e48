#pragma once
#include "history/timeline.h"
#include "measure/run_series.h"

#include <QObject>
#include <atomic>
#include <memory>
#include <optional>

class QThread;

namespace zentrik {

// Keeps the values of some curves over the stretch of the run in which the scene stands: takes them step by
// step while it runs, and steps through again, in a thread of its own where that is long, what was run before
// anybody asked for them.
class RunReader : public QObject {
public:
    RunReader();
    ~RunReader() override;

    // The thread has read to its end; there may be more by now, which follow reads.
    std::function<void()> read;

    void choose(std::vector<Curve> curves);
    // What has come since the last call: whether what was there before still stands.
    enum class News { nothing, more, afresh };
    // To be called after every event.
    News follow(const Timeline& timeline, const Editor& ed);

    const RunSeries& series() const { return series_; }
    // How far the thread is, 0 to 1; none while there is nothing to wait for.
    std::optional<double> progress() const;

private:
    std::vector<Curve> curves_;
    RunSeries series_;
    std::uint64_t branch_ = 0;  // of the run that it is of
    bool afresh_ = false;       // since the last call
    std::unique_ptr<QThread> thread_;
    std::atomic<double> done_ = 0;
    std::atomic<bool> cancelled_ = false;
    RunSeries made_;  // by the thread

    void begin(std::int64_t step);
    void cutTo(const RecordedRun& run, const Stretch& stretch);
    void start(const RecordedRun& run, const Stretch& stretch);
    void finish();
    void cancel();
};

}  // namespace zentrik
