#include "measure/run_series.h"

#include "sim/step.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zentrik {

namespace {

constexpr std::size_t allSpans = std::size_t{1} << 20;  // of all curves together
constexpr std::size_t fewest = 256, enough = std::size_t{1} << 15;

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

Span spanOf(double value) {
    return {value, value, value, std::isnan(value) ? 0 : value, std::isnan(value) ? 0 : 1};
}

// std::fmin takes the number where one of the two is none.
Span joined(const Span& a, const Span& b) {
    return {a.first, std::fmin(a.least, b.least), std::fmax(a.greatest, b.greatest), a.sum + b.sum,
            a.count + b.count};
}

// Where it swings through its mean upwards, times; a swing that does not reach a tenth of the way to its end
// is a tremble.
std::vector<double> upwardCrossings(const std::vector<Span>& times, const std::vector<Span>& values,
                                    std::size_t from, std::size_t to, const CurveFigures& figures) {
    std::vector<double> crossings;
    const double deep = figures.mean - (figures.mean - figures.least) / 10;
    bool wasDeep = false;
    for (std::size_t i = from + 1; i < to; ++i) {
        const double before = values[i - 1].first, now = values[i].first;
        wasDeep = wasDeep || before < deep;
        if (!wasDeep || !(before < figures.mean && now >= figures.mean)) continue;
        wasDeep = false;
        const double part = (figures.mean - before) / (now - before);
        crossings.push_back(times[i - 1].first + part * (times[i].first - times[i - 1].first));
    }
    return crossings;
}

double periodOf(const std::vector<double>& crossings) {
    if (crossings.size() < 3) return 0;
    constexpr double alike = 0.05;  // of the mean, by which a swing may be longer or shorter
    const double mean = (crossings.back() - crossings.front()) / static_cast<double>(crossings.size() - 1);
    for (std::size_t i = 1; i < crossings.size(); ++i)
        if (std::fabs(crossings[i] - crossings[i - 1] - mean) > alike * std::fabs(mean)) return 0;
    return mean;
}

}  // namespace

RunSeries::RunSeries(std::vector<Curve> curves, std::int64_t begin, std::size_t most)
    : curves_(std::move(curves)), begin_(begin), end_(begin), most_(most) {
    curves_.insert(curves_.begin(), Curve{quantities().data()});
    spans_.resize(curves_.size());
    all_.assign(curves_.size(), spanOf(noNumber));
    if (most_ == 0) most_ = std::clamp(allSpans / curves_.size() / 2 * 2, fewest, enough);
}

void RunSeries::add(const Editor& ed) {
    const bool begins = (end_ - begin_) % stride_ == 0;
    if (begins && size() == most_) return putTogether(), add(ed);
    const ModelReading reading(ed);
    const double time = end_ == begin_ ? 0 : spans_[0].back().greatest + wide(stepSize(ed));
    for (std::size_t c = 0; c < curves_.size(); ++c) {
        const Span value = spanOf(c == 0 ? time : valueOf(reading, curves_[c]));
        if (begins)
            spans_[c].push_back(value);
        else
            spans_[c].back() = joined(spans_[c].back(), value);
        all_[c] = joined(all_[c], value);
    }
    ++end_;
}

void RunSeries::putTogether() {
    for (std::vector<Span>& spans : spans_) {
        for (std::size_t i = 0; i < spans.size() / 2; ++i) spans[i] = joined(spans[2 * i], spans[2 * i + 1]);
        spans.resize(spans.size() / 2);
    }
    stride_ *= 2;
}

void RunSeries::cut(std::int64_t end) {
    if (end >= end_) return;
    const std::int64_t whole = std::max<std::int64_t>(end - begin_, 0) / stride_;
    for (std::vector<Span>& spans : spans_) spans.resize(static_cast<std::size_t>(whole));
    end_ = begin_ + whole * stride_;
    for (std::size_t c = 0; c < curves_.size(); ++c) all_[c] = spanOver(*this, c, 0, size());
}

std::size_t RunSeries::spanAt(std::int64_t step) const {
    if (size() == 0) return 0;
    const std::int64_t span = std::max<std::int64_t>(step - begin_, 0) / stride_;
    return std::min(static_cast<std::size_t>(span), size() - 1);
}

Span spanOver(const RunSeries& series, std::size_t curve, std::size_t from, std::size_t to) {
    Span all = spanOf(noNumber);
    for (std::size_t i = from; i < to; ++i) all = joined(all, series.of(curve)[i]);
    return all;
}

CurveFigures figuresOf(const RunSeries& series, std::size_t curve, std::size_t from, std::size_t to) {
    const Span all = spanOver(series, curve, from, to);
    if (all.count == 0) return {noNumber, noNumber, noNumber};
    CurveFigures figures{all.least, all.greatest, all.sum / static_cast<double>(all.count)};
    figures.period = periodOf(upwardCrossings(series.of(0), series.of(curve), from, to, figures));
    return figures;
}

}  // namespace zentrik
