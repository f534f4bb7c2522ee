// The program as a user runs it: entries of CIF files read, styled and written, from one to many,
// and names by tens of megabytes converted, also beside others.
#include <benchmark/benchmark.h>

#include "bench/processes.h"
#include "bench/texts.h"
#include "markup/HtmlRichTextGenerator.h"

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
    const LinesFile names(lines_of(source), 700);
    double memory = 0;
    for (auto _ : state) {
        memory = run_program({PROGRAM, "convert", "--from", from, "--to", "html", "--jobs",
                              std::to_string(state.range(0)), names.path()})
                     .megabytes;
    }
    state.counters["MB"] = memory;
    state.counters["MB/s"] =
        benchmark::Counter(names.megabytes(), benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK_CAPTURE(convert, tevo_names, "tevo-name", "tevo_names.txt")
    ->Arg(1)
    ->Arg(2)
    ->Arg(8)
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

#ifdef MD_TO_HTML
/// The same names in turns with the Markdown reader md4c, which gets them as paragraphs with HTML
/// tags; "of_md4c" says how often its time is ours.
void convert_beside_md4c(benchmark::State& state) {
    std::vector<std::string> paragraphs = names_by(make_handle<HtmlRichTextGenerator>());
    for (std::string& paragraph : paragraphs) {
        paragraph.replace(paragraph.size() - 3, 3, "\n");  // the <p> that ends each
    }
    constexpr std::size_t repetitions = 500;
    const LinesFile names(lines_of("tevo_names.txt"), repetitions);
    const LinesFile markdown(paragraphs, repetitions);
    std::vector<double> ratios;
    for (auto _ : state) {
        const double ours = run_program({PROGRAM, "convert", "--from", "tevo-name", "--to", "html",
                                         "--jobs", "1", names.path()})
                                .seconds;
        ratios.push_back(ours / run_program({MD_TO_HTML, markdown.path()}).seconds);
    }
    state.counters["of_md4c"] = median(ratios);
}
BENCHMARK(convert_beside_md4c)->Iterations(15)->Unit(benchmark::kMillisecond);
#endif

/// How long the program takes to begin and end, beside one that does nothing.
void start(benchmark::State& state, const std::vector<std::string>& arguments) {
    std::vector<std::string> all{PROGRAM};
    all.insert(all.end(), arguments.begin(), arguments.end());
    std::vector<double> ours, nothing;
    for (auto _ : state) {
        ours.push_back(run_program(all).seconds);
        nothing.push_back(run_program({"/bin/cat", "/dev/null"}).seconds);
    }
    state.counters["ms"] = median(ours) * 1000;
    state.counters["ms_of_cat"] = median(nothing) * 1000;
}
BENCHMARK_CAPTURE(start, version, {"--version"})->Iterations(200)->Unit(benchmark::kMillisecond);

void start_with_a_name(benchmark::State& state) {
    const LinesFile name({"trans-platin-beta"}, 1);
    start(state, {"convert", "--from", "tevo-name", "--to", "html", name.path()});
}
BENCHMARK(start_with_a_name)->Iterations(200)->Unit(benchmark::kMillisecond);

}  // namespace
