#include "bench/GrowthReporter.h"

void GrowthReporter::ReportRuns(const std::vector<Run>& runs) {
    std::vector<Run> grown = runs;
    for (Run& run : grown) {
        if (run.run_type != Run::RT_Iteration || run.run_name.args.empty()) continue;
        const double time = run.real_accumulated_time / static_cast<double>(run.iterations);
        double& before = times_[run.run_name.function_name];
        if (before > 0) run.counters["growth"] = time / before;
        before = time;
    }
    ConsoleReporter::ReportRuns(grown);
}
