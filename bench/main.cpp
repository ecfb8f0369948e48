#include <benchmark/benchmark.h>

#include <QGuiApplication>

int main(int argc, char** argv) {
    // No benchmark needs a display, whatever the machine offers.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
