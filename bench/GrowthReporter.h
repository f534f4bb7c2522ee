#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

/// The usual table without colours, with a counter "growth" beside each size of a benchmark: its
/// time as a multiple of that of the size before it.
class GrowthReporter : public benchmark::ConsoleReporter {
public:
    GrowthReporter() : ConsoleReporter(OO_None) {}

    void ReportRuns(const std::vector<Run>& runs) override;

private:
    struct Size {
        double size, time;  // as the benchmark has it, and seconds
    };
    std::map<std::string, Size> sizes_;  // the last of each benchmark
};
