#include "report.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QByteArray>
#include <string>
#include <vector>

// --report measures what docs/performance.md shows and prints that page; everything else is as the
// benchmark library has it.
int main(int argc, char** argv) {
    // No benchmark needs a display, whatever the machine offers.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    const bool report = argc == 2 && QByteArray(argv[1]) == "--report";
    // The middle of five, for on a busy machine single runs are no measure.
    std::vector<char*> arguments(argv, argv + argc);
    std::string repetitions = "--benchmark_repetitions=5", shortRuns = "--benchmark_min_time=0.1";
    if (report) arguments = {argv[0], repetitions.data(), shortRuns.data()};
    argc = static_cast<int>(arguments.size());
    benchmark::Initialize(&argc, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(argc, arguments.data())) return 1;
    if (report) {
        zentrik::Report page;
        benchmark::RunSpecifiedBenchmarks(&page, zentrik::Report::filter());
    } else {
        benchmark::RunSpecifiedBenchmarks();
    }
    benchmark::Shutdown();
    return 0;
}
