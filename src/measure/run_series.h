#pragma once
// The values of some curves over a run, in bounded memory: as it grows longer, neighbouring steps are put
// together to spans of which the least and the greatest value stay, so that no peak is lost.

#include "measure/curves.h"

#include <cstdint>
#include <vector>

namespace zentrik {

// What a curve did over the steps of one span. Not a number where there was nothing to measure.
struct Span {
    double first, least, greatest;
    double sum = 0;
    std::int64_t count = 0;  // of the values that are numbers
};

class RunSeries {
public:
    // most: spans of a curve, even; 0 for as many as a few dozen megabytes hold.
    explicit RunSeries(std::vector<Curve> curves = {}, std::int64_t begin = 0, std::size_t most = 0);

    // The model as the step end() left it.
    void add(const Editor& ed);
    // Forgets the steps from here on, and what was put together with them.
    void cut(std::int64_t end);

    // The first is the time since the series' begin, which the model's own clock is not: a wall can turn that
    // round. Those asked for follow.
    const std::vector<Curve>& curves() const { return curves_; }
    const std::vector<Span>& of(std::size_t curve) const { return spans_[curve]; }
    std::size_t size() const { return spans_.front().size(); }  // spans of each curve
    std::int64_t stride() const { return stride_; }             // steps of a span; the last may have fewer
    std::int64_t begin() const { return begin_; }
    std::int64_t end() const { return end_; }
    std::int64_t stepOf(std::size_t span) const { return begin_ + static_cast<std::int64_t>(span) * stride_; }
    // All spans of a curve put together.
    const Span& all(std::size_t curve) const { return all_[curve]; }
    // In which a step lies, as far as there are any.
    std::size_t spanAt(std::int64_t step) const;

private:
    std::vector<Curve> curves_;
    std::vector<std::vector<Span>> spans_;  // by curve
    std::vector<Span> all_;
    std::int64_t begin_, end_, stride_ = 1;
    std::size_t most_;

    void putTogether();
};

// Of a curve, over its spans from one to before another.
struct CurveFigures {
    double least, greatest, mean;  // not a number where there is nothing to measure
    // Of an oscillation, in time units; 0 where there is none: the mean time between its upward crossings of
    // its mean, of which there must be three at like distances. Its frequency is 1 / period.
    double period = 0;
};
Span spanOver(const RunSeries& series, std::size_t curve, std::size_t from, std::size_t to);
CurveFigures figuresOf(const RunSeries& series, std::size_t curve, std::size_t from, std::size_t to);

}  // namespace zentrik
