// The program as a user runs it: entries of CIF files read, styled and written, from one to many,
// and 100 MB of names converted.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench/processes.h"
#include "bench/texts.h"

namespace {

void show(benchmark::State& state, const std::string& target) {
    std::vector<std::string> arguments{PROGRAM, "show", "--view", "internal", "--to", target};
    const auto entries = static_cast<std::size_t>(state.range(0));
    append_files(arguments, CIF_FOLDER, entries);
    double memory = 0;
    for (auto _ : state) memory = run_program(arguments).megabytes;
    state.counters["MB"] = memory;
    state.counters["entries"] = benchmark::Counter(static_cast<double>(entries),
                                                   benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK_CAPTURE(show, html5, "html5")
    ->Arg(1)
    ->Arg(1000)
    ->Arg(10000)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(show, json, "json")
    ->Arg(1)
    ->Arg(1000)
    ->Arg(10000)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

void convert(benchmark::State& state, const std::string& from, const std::string& source) {
    const LinesFile names(lines_of(source), 100'000'000);
    double memory = 0;
    for (auto _ : state) {
        memory = run_program({PROGRAM, "convert", "--from", from, "--to", "html", "--jobs",
                              std::to_string(state.range(0)), names.path()})
                     .megabytes;
    }
    state.counters["MB"] = memory;
    state.counters["MB/s"] =
        benchmark::Counter(static_cast<double>(std::filesystem::file_size(names.path())) / 1e6,
                           benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK_CAPTURE(convert, tevo_names, "tevo-name", "tevo_names.txt")
    ->Arg(1)
    ->Arg(2)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(convert, names_as_tevo, "tevo-name", "names.txt")
    ->Arg(1)
    ->Arg(2)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(convert, cif_names, "cif-name", "names.txt")
    ->Arg(1)
    ->Arg(2)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
