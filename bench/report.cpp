#include "report.h"

#include <cmath>
#include <cstdio>
#include <thread>

namespace zentrik {

namespace {

constexpr int sizes[] = {1000, 10000, 100000};

struct Row {
    const char* family;
    const char* what;
};
struct Table {
    const char* title;
    const char* baseline;  // family of which the others are told as multiples
    const char* baselineText;
    std::vector<Row> rows;
};

const std::vector<Table>& tables() {
    static const std::vector<Table> all{
        {"One step",
         "plainSprings",
         "a plain loop over the same number of springs, without nodes, in the same run",
         {{"step", "lattice, about four springs a node"},
          {"heedingNoBarriers", "the same, barriers heeded where there are none"},
          {"latticeAtWall", "lattice, its first column at the wall"},
          {"looseAtWall", "loose nodes, all at the wall"},
          {"chainAlongWall", "one chain of springs along the wall"},
          {"barriersWithFreeEnds",
           "loose nodes, two barriers to five of them, on ends that move: nodes x barriers"},
          {"connectedObject", "looking for a connected object"}}},
        {"One frame of 1920 x 1080 pixels",
         "itemByItem",
         "one drawing call for each node and link, in the same run",
         {{"scene", "lattice, about four links a node"},
          {"sceneTwoLinks", "two links a node"},
          {"bestPainterShort",
           "the same by QPainter at its best: all lines in one call, one picture stamped"},
          {"sceneMixedColours", "the same, nodes in sixteen colours"},
          {"sceneRandomColours", "the same, every node in a colour of its own"},
          {"sceneNumbers", "the same, with all numbers"},
          {"pointerOverStillScene", "a mark that moves over a scene at rest, four links a node"}}},
    };
    return all;
}

// Measured by leaving each out; the rest of the page is measured anew.
constexpr const char* speedUps = R"(
## What makes the step fast

Steps without a part that makes them faster, as a multiple of the step as it is; two processors at 2.6 GHz.

| Without | Model | Multiple |
|---|---|---:|
| a run's arrivals stored at once where nothing comes between (`node_stage.cpp`) | 10,000 loose nodes | 1.3 |
| springs measured in the nodes' short records (`step.cpp`, `springs.cpp`) | lattice of 10,000 nodes | 1.4 |
| one division for an attraction instead of five (`attraction.cpp`) | 10,000 nodes, 100 of them attracting | 3.4 |
| attracting nodes one by one, x beside y (`attraction.cpp`) | 100 nodes, all attracting | 2.1 |
| wide vectors and asking ahead (`pair.h`, `prefetch.h`) | 10,000 nodes, 100 of them attracting | 1.5 |
| | lattice of 10,000 nodes | 1.15 |
)";

std::string timeText(double microseconds) {
    char text[32];
    if (microseconds < 1000)
        std::snprintf(text, sizeof text, "%.0f us", microseconds);
    else
        std::snprintf(text, sizeof text, microseconds < 10000 ? "%.2f ms" : "%.1f ms", microseconds / 1000);
    return text;
}

// Of cost that grows like a power of the number of nodes, from the smallest to the largest.
double exponent(const std::map<int, double>& times) {
    return std::log(times.rbegin()->second / times.begin()->second) /
           std::log(double(times.rbegin()->first) / times.begin()->first);
}

}  // namespace

std::string Report::filter() {
    std::string families;
    for (const Table& table : tables()) {
        families += std::string("|") + table.baseline;
        for (const Row& row : table.rows) families += std::string("|") + row.family;
    }
    return "^(" + families.substr(1) + ")/(1000|10000|100000)$";
}

bool Report::ReportContext(const Context& context) {
    char text[100];
    std::snprintf(text, sizeof text, "%d processors at %.1f GHz", context.cpu_info.num_cpus,
                  context.cpu_info.cycles_per_second / 1e9);
    machine_ = text;
    return true;
}

void Report::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Aggregate || run.aggregate_name != "median") continue;
        const int nodes = std::stoi(run.run_name.args);
        times_[run.run_name.function_name][nodes] = run.GetAdjustedCPUTime();
        std::fprintf(stderr, "%s %d\n", run.run_name.function_name.c_str(), nodes);
    }
}

void Report::Finalize() {
    std::printf(
        "# Performance\n\nWritten by `zentrik_bench --report`, measured on %s, one thread. Times of other "
        "machines differ; the multiples and the growth hardly do. Growth is the exponent with which cost "
        "rises from 1,000 to 100,000 nodes: 1 is in step with the model.\n",
        machine_.c_str());
    for (const Table& table : tables()) {
        std::printf("\n## %s\n\nMultiples are those of %s, at 10,000 nodes.\n\n", table.title,
                    table.baselineText);
        std::printf(
            "| | 1,000 nodes | 10,000 | 100,000 | multiple | growth |\n|---|---:|---:|---:|---:|---:|\n");
        const auto line = [&](const char* family, const char* what) {
            const auto& times = times_[family];
            std::printf("| %s |", what);
            for (const int nodes : sizes)
                std::printf(" %s |", times.contains(nodes) ? timeText(times.at(nodes)).c_str() : "");
            const bool known = times.contains(10000) && times_[table.baseline].contains(10000);
            if (known) std::printf(" %.2f |", times.at(10000) / times_[table.baseline].at(10000));
            if (times.size() > 1) std::printf(" %.2f |\n", exponent(times));
        };
        line(table.baseline, "(what the multiples are of)");
        for (const Row& row : table.rows) line(row.family, row.what);
    }
    std::fputs(speedUps, stdout);
}

}  // namespace zentrik
