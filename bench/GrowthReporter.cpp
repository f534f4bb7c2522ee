#include "bench/GrowthReporter.h"

#include <cstdlib>

void GrowthReporter::ReportRuns(const std::vector<Run>& runs) {
    std::vector<Run> grown = runs;
    for (Run& run : grown) {
        if (run.run_type != Run::RT_Iteration || run.run_name.args.empty()) continue;
        const double time = run.real_accumulated_time / static_cast<double>(run.iterations);
        const double size = std::strtod(run.run_name.args.c_str(), nullptr);
        Size& before = sizes_[run.run_name.function_name];
        constexpr double next_size = 20;  // what is larger by more belongs to another measurement
        if (before.size > 0 && size <= next_size * before.size) {
            run.counters["growth"] = time / before.time;
        }
        before = {size, time};
    }
    ConsoleReporter::ReportRuns(grown);
}
