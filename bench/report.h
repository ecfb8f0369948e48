#pragma once
// Writes what was measured as the page docs/performance.md.

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace zentrik {

// Gathers the medians of benchmarks that are named family/nodes, and prints them as tables at the end.
class Report : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    // Names of what the tables hold, as a filter.
    static std::string filter();

private:
    std::map<std::string, std::map<int, double>> times_;  // microseconds by family and number of nodes
    std::string machine_;
};

}  // namespace zentrik
